#include "simulator/Frameworks.h"

namespace sim {

void registerFrameworks() {
  registerDispatch();
  registerFoundation();
  registerQuartzCore();
  registerUIKit();
  registerMediaRemote();
  registerServices();
  registerCephei();
  registerRadios();
  registerDoNotDisturb();
  registerRunwright();
  registerBackBoard();
  registerSpringBoard();
  registerMediaControls();
  registerCoverSheet();
  registerControlCenter();
  registerPreferences();
}

}  // namespace sim
