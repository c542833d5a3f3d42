#include "simulator/Fidelity.h"
#include "simulator/Frameworks.h"
#include "simulator/runwright/ShortcutRunner.h"

namespace sim {

void registerRunwright() {
  // A name to leave out also where `shortcuts` has not installed it.
  const FidelityPage known("Runwright", "RunwrightManager");
  ShortcutRunner::current().hostDidBoot();
}

}  // namespace sim
