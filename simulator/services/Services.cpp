#include "simulator/services/PCDispatchTimer.h"
#include "simulator/services/PCSimpleTimer.h"
#include "simulator/standin/Fidelity.h"
#include "simulator/standin/Registration.h"

namespace sim {

void registerServices() {
  PCDispatchTimer::registerClass();
  PCSimpleTimer::registerClass();
  recordFunction(
      "CydiaSubstrate", "MSHookMessageEx",
      {Grade::partial,
       "a class method that is named through its class is replaced, where a phone's gives "
       "its instances a method"});
  recordFunction("AudioToolbox", "AudioServicesPlaySystemSound",
                 {Grade::partial, "the journal's line is all that is heard or felt"});
}

}  // namespace sim
