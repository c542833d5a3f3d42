#include "simulator/Frameworks.h"

namespace sim {

void registerFrameworks() {
  registerDispatch();
  registerFoundation();
  registerUIKit();
  registerMediaRemote();
  registerServices();
  registerCephei();
  registerSpringBoard();
}

}  // namespace sim
