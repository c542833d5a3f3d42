#include "tweak/indicators/Dozewell2TimeLeftIndicatorsManager.h"

#include "platform/Dispatch.h"
#include "platform/SpringBoard.h"
#include "tweak/engine/Dozewell2Manager.h"
#include "tweak/hooks/LockScreen.h"
#include "tweak/indicators/TimeFormat.h"
#include "tweak/settings/Dozewell2StorageManager.h"
#include "tweak/support/LocalizationHelper.h"

using Indicators = Dozewell2TimeLeftIndicatorsManager;

Indicators& Dozewell2TimeLeftIndicatorsManager::sharedInstance() {
  return shared();
}

void Dozewell2TimeLeftIndicatorsManager::startTimerWithDate(NSDate end) {
  if (Dozewell2StorageManager::sharedInstance().showIndicatorOnNC)
    objc::send<void, "dozewell_startTimerWithDate:">(LockScreen::timerController(), end);
  startUpdatingRemainingTimeLabelsInCC();
}

// Whatever the setting: it may have been on when the timer started.
void Dozewell2TimeLeftIndicatorsManager::stopTimer() {
  objc::send<void, "dozewell_stopTimer">(LockScreen::timerController());
  stopUpdatingRemainingTimeLabelsInCC();
}

void Dozewell2TimeLeftIndicatorsManager::updateCounterWithNbTracks() {
  if (Dozewell2StorageManager::sharedInstance().showIndicatorOnNC)
    objc::send<void, "dozewell_setNbTracksLeftText">(LockScreen::dateView());
  dozewellVcTimeLeftLabel->setText(LocalizationHelper::getLocalizedNumberStringFrom(
      Dozewell2Manager::sharedInstance().getTimerRemainingTracks()));
}

void Dozewell2TimeLeftIndicatorsManager::stopCounter() {
  objc::send<void, "dozewell_restoreOriginalText">(LockScreen::dateView());
}

void Dozewell2TimeLeftIndicatorsManager::startUpdatingRemainingTimeLabelsInCC() {
  if (updateRemainingTimeLabelsTimer) return;
  dispatch::onMain([] { sharedInstance().showRemainingTime(); });
  const auto timer = NSTimer::scheduledTimer(1.0, true, [] { sharedInstance().refresh(); });
  updateRemainingTimeLabelsTimer = objc::retain(timer);
  // So that it goes on while the user scrolls.
  NSRunLoop::mainRunLoop().addTimer(timer, NSRunLoop::commonModes());
}

void Dozewell2TimeLeftIndicatorsManager::stopUpdatingRemainingTimeLabelsInCC() {
  if (!updateRemainingTimeLabelsTimer) return;
  updateRemainingTimeLabelsTimer->invalidate();
  updateRemainingTimeLabelsTimer = nullptr;
}

void Dozewell2TimeLeftIndicatorsManager::refresh() {
  if (!SBBacklightController::sharedInstance().screenIsOn()) return;
  showRemainingTime();
  // After the last value has been shown once more.
  if (!Dozewell2Manager::sharedInstance().timerModeIsRunning) stopUpdatingRemainingTimeLabelsInCC();
}

void Dozewell2TimeLeftIndicatorsManager::showRemainingTime() {
  const double seconds = Dozewell2Manager::sharedInstance().getTimerRemainingTime();
  dozewellVcTimeLeftLabel->setText(NSString(timeFormatted(wholeSeconds(seconds))));
}

Class Dozewell2TimeLeftIndicatorsManager::registerClass() {
  return objc::ClassBuilder<Indicators>("Dozewell2TimeLeftIndicatorsManager", "NSObject")
      .property<"dozewellVcTimeLeftLabel", &Indicators::dozewellVcTimeLeftLabel>()
      .property<"updateRemainingTimeLabelsTimer", &Indicators::updateRemainingTimeLabelsTimer>()
      .classMethod<"sharedInstance", &Indicators::sharedInstance>()
      .method<"startTimerWithDate:", &Indicators::startTimerWithDate>()
      .method<"stopTimer", &Indicators::stopTimer>()
      .method<"updateCounterWithNbTracks", &Indicators::updateCounterWithNbTracks>()
      .method<"stopCounter", &Indicators::stopCounter>()
      .method<"startUpdatingRemainingTimeLabelsInCC",
              &Indicators::startUpdatingRemainingTimeLabelsInCC>()
      .method<"stopUpdatingRemainingTimeLabelsInCC",
              &Indicators::stopUpdatingRemainingTimeLabelsInCC>()
      .finish();
}
