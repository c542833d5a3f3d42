#include "simulator/Frameworks.h"
#include "simulator/runwright/ShortcutRunner.h"

namespace sim {

void registerRunwright() {
  ShortcutRunner::current().hostDidBoot();
}

}  // namespace sim
