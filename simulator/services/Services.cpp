#include "simulator/services/PCDispatchTimer.h"
#include "simulator/services/PCSimpleTimer.h"
#include "simulator/standin/Fidelity.h"
#include "simulator/standin/Registration.h"

namespace sim {

void registerServices() {
  PCDispatchTimer::registerClass();
  PCSimpleTimer::registerClass();
  recordFunction("AudioToolbox", "AudioServicesPlaySystemSound",
                 {Grade::partial, "the journal's line is all that is heard or felt"});
}

}  // namespace sim
