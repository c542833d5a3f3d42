#include "simulator/Frameworks.h"
#include "simulator/services/PCSimpleTimer.h"

namespace sim {

void registerServices() {
  PCSimpleTimer::registerClass();
}

}  // namespace sim
