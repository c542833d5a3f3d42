// What the lock screen is made of.
#include "simulator/coversheet/CSCoverSheetViewController.h"
#include "simulator/coversheet/CSMediaControlsViewController.h"
#include "simulator/coversheet/CSProminentSubtitleDateView.h"
#include "simulator/coversheet/CSTimerViewController.h"
#include "simulator/coversheet/ClockView.h"
#include "simulator/coversheet/LockScreen.h"
#include "simulator/coversheet/SBFLockScreenDateSubtitleDateView.h"
#include "simulator/coversheet/SBFLockScreenDateSubtitleView.h"
#include "simulator/coversheet/SBLockScreenManager.h"
#include "simulator/coversheet/SBUILegibilityLabel.h"
#include "simulator/springboard/SpringBoard.h"
#include "simulator/standin/Registration.h"

namespace sim {

// A class comes after its superclass.
void registerCoverSheet() {
  SBUILegibilityLabel::registerClass();
  SBFLockScreenDateSubtitleView::registerClass();
  SBFLockScreenDateSubtitleDateView::registerClass();
  CSProminentTextElementView::registerClass();
  CSProminentSubtitleDateView::registerClass();
  CSTimerViewController::registerClass();
  CSMediaControlsViewController::registerClass();
  CSCoverSheetViewController::registerClass();
  SBLockScreenManager::registerClass();
  ClockView::registerClass();
  addClockApplication();
  addLaunchTask([] { LockScreen::current().makeTimerController(); });
}

}  // namespace sim
