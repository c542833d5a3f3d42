#include "simulator/services/PCDispatchTimer.h"

#include "simulator/standin/StandIn.h"

namespace sim {

void PCDispatchTimer::registerClass() {
  StandIn<PCDispatchTimer>("PersistentConnection", "PCDispatchTimer", "NSObject")
      .readonlyProperty<"fireDate", &PCDispatchTimer::fireDate>()
      .finish();
}

}  // namespace sim
