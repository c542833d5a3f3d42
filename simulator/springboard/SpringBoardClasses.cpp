// What lives in the host's process.
#include "simulator/Frameworks.h"
#include "simulator/springboard/SBApplication.h"
#include "simulator/springboard/SBBacklightController.h"
#include "simulator/springboard/SBMediaController.h"
#include "simulator/springboard/SBVolumeControl.h"
#include "simulator/springboard/SpringBoard.h"

namespace sim {

void registerSpringBoard() {
  SBApplication::registerClass();
  SBBacklightController::registerClass();
  SBVolumeControl::registerClass();
  SBMediaController::registerClass();
  SpringBoard::registerClass();
}

}  // namespace sim
