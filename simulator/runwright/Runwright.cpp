#include "simulator/runwright/ShortcutRunner.h"
#include "simulator/standin/Fidelity.h"
#include "simulator/standin/Registration.h"

namespace sim {

void registerRunwright() {
  // A name to leave out also where `shortcuts` has not installed it.
  const FidelityPage known("Runwright", "RunwrightManager");
  ShortcutRunner::current().hostDidBoot();
}

}  // namespace sim
