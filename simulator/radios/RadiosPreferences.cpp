#include "simulator/radios/RadiosPreferences.h"

#include "simulator/machine/Phone.h"
#include "simulator/radios/Radios.h"
#include "simulator/standin/StandIn.h"

namespace sim {

bool RadiosPreferences::airplaneMode() {
  return unsaved.value_or(Radios::current().isAirplaneModeOn());
}

void RadiosPreferences::setAirplaneMode(bool on) {
  Phone::current().journal.record("-[RadiosPreferences setAirplaneMode:" + notation(on) + ']');
  unsaved = on;
}

void RadiosPreferences::synchronize() {
  Phone::current().journal.record("-[RadiosPreferences synchronize]");
  if (unsaved) Radios::current().setAirplaneMode(*unsaved);
  unsaved.reset();
}

void RadiosPreferences::registerClass() {
  StandIn<RadiosPreferences>("AppSupport", "RadiosPreferences", "NSObject")
      .method<"airplaneMode", &RadiosPreferences::airplaneMode>()
      .partial<"setAirplaneMode:", &RadiosPreferences::setAirplaneMode>(
          "takes effect with synchronize, not before; Bluetooth stays as it is")
      .method<"synchronize", &RadiosPreferences::synchronize>()
      .finish();
}

}  // namespace sim
