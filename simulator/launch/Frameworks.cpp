#include "simulator/launch/Frameworks.h"

#include "simulator/standin/Registration.h"

namespace sim {

void registerFrameworks() {
  registerDispatch();
  registerFoundation();
  registerQuartzCore();
  registerUIKit();
  registerMediaRemote();
  registerServices();
  registerRadios();
  registerDoNotDisturb();
  registerRunwright();
  registerBackBoard();
  registerSpringBoard();
  registerMediaControls();
  registerCoverSheet();
  registerControlCenter();
  registerPreferences();
  nameCephei();
}

}  // namespace sim
