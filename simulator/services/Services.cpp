#include "simulator/Fidelity.h"
#include "simulator/Frameworks.h"
#include "simulator/services/PCSimpleTimer.h"

namespace sim {

void registerServices() {
  PCSimpleTimer::registerClass();
  recordFunction("AudioToolbox", "AudioServicesPlaySystemSound",
                 {Grade::partial, "the journal's line is all that is heard or felt"});
}

}  // namespace sim
