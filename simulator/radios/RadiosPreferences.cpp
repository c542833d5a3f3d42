#include "simulator/radios/RadiosPreferences.h"

#include "simulator/machine/Phone.h"
#include "simulator/radios/Radios.h"
#include "simulator/standin/StandIn.h"

namespace sim {

bool RadiosPreferences::airplaneMode() {
  return Radios::current().isAirplaneModeOn();
}

void RadiosPreferences::setAirplaneMode(bool on) {
  Phone::current().journal.record("-[RadiosPreferences setAirplaneMode:" + notation(on) + ']');
  Radios::current().waitForWatch();
  Radios::current().setAirplaneMode(on);
}

void RadiosPreferences::synchronize() {
  Phone::current().journal.record("-[RadiosPreferences synchronize]");
}

void RadiosPreferences::registerClass() {
  StandIn<RadiosPreferences>("AppSupport", "RadiosPreferences", "NSObject")
      .method<"airplaneMode", &RadiosPreferences::airplaneMode>()
      .partial<"setAirplaneMode:", &RadiosPreferences::setAirplaneMode>(
          "Bluetooth stays as it is; a paired watch never answers before its 5 seconds are over")
      .method<"synchronize", &RadiosPreferences::synchronize>()
      .finish();
}

}  // namespace sim
