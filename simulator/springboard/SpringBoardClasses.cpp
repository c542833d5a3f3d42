// What lives in the host's process.
#include "simulator/springboard/SBApplication.h"
#include "simulator/springboard/SBBacklightController.h"
#include "simulator/springboard/SBFWallpaperView.h"
#include "simulator/springboard/SBHomeBar.h"
#include "simulator/springboard/SBHomeScreenView.h"
#include "simulator/springboard/SBMediaController.h"
#include "simulator/springboard/SBVolumeControl.h"
#include "simulator/springboard/SpringBoard.h"
#include "simulator/springboard/StatusBarView.h"
#include "simulator/standin/Registration.h"

namespace sim {

void registerSpringBoard() {
  SBApplication::registerClass();
  SBBacklightController::registerClass();
  SBVolumeControl::registerClass();
  SBMediaController::registerClass();
  SBFWallpaperView::registerClass();
  SBHomeBar::registerClass();
  SBHomeScreenView::registerClass();
  StatusBarView::registerClass();
  SpringBoard::registerClass();
  addLaunchTask([] {
    if (SBMediaController::cls() != nullptr) SBMediaController::sharedInstance();
  });
}

}  // namespace sim
