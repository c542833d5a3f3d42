#include "tweak/indicators/Dozewell2TimeLeftIndicatorsManager.h"

#include "objc/Class.h"
#include "platform/Dispatch.h"
#include "platform/SpringBoard.h"
#include "tweak/indicators/LockScreenViews.h"
#include "tweak/indicators/SleepTimer.h"
#include "tweak/indicators/SpokenTimeLeft.h"
#include "tweak/indicators/TimeFormat.h"
#include "tweak/indicators/TimeLeftPage.h"
#include "tweak/settings/Dozewell2StorageManager.h"
#include "tweak/support/LocalizationHelper.h"

namespace {

struct Dozewell2TimeLeftIndicatorsManagerImplementation
    : objc::Implementation<Dozewell2TimeLeftIndicatorsManagerImplementation> {
  objc::Strong<NSTimer> updateRemainingTimeLabelsTimer;  // nil: not refreshing
  objc::Strong<UILabel> dozewellVcTimeLeftLabel;         // the panel's; nil until it has one
  long toldMinutes;  // which of minutesToTell() the label's spoken value says

  static Dozewell2TimeLeftIndicatorsManagerImplementation& sharedInstance() { return shared(); }

  void startTimerWithDate(NSDate end);  // may be nil
  void stopTimer();
  void updateCounterWithNbTracks();
  void stopCounter();
  void startUpdatingRemainingTimeLabelsInCC();
  void stopUpdatingRemainingTimeLabelsInCC();

 private:
  void refresh();
  void showRemainingTime();
  void tellRemainingTime();
};

using Indicators = Dozewell2TimeLeftIndicatorsManagerImplementation;

void Indicators::startTimerWithDate(NSDate end) {
  if (Dozewell2StorageManager::sharedInstance().showIndicatorOnNC())
    DozewellTimerController::newest().dozewell_startTimerWithDate(end);
  startUpdatingRemainingTimeLabelsInCC();
}

// Whatever the setting: it may have been on when the timer started.
void Indicators::stopTimer() {
  DozewellTimerController::newest().dozewell_stopTimer();
  stopUpdatingRemainingTimeLabelsInCC();
}

void Indicators::updateCounterWithNbTracks() {
  if (Dozewell2StorageManager::sharedInstance().showIndicatorOnNC())
    DozewellDateView::newest().dozewell_setNbTracksLeftText();
  dozewellVcTimeLeftLabel->setText(LocalizationHelper::getLocalizedNumberStringFrom(
      SleepTimer::sharedInstance().getTimerRemainingTracks()));
  dozewellVcTimeLeftLabel->setAccessibilityValue(spokenTimeLeft());
  toldMinutes = 0;
  TimeLeftPage::labelChanged();
}

void Indicators::stopCounter() {
  DozewellDateView::newest().dozewell_restoreOriginalText();
}

void Indicators::startUpdatingRemainingTimeLabelsInCC() {
  if (updateRemainingTimeLabelsTimer) return;
  // The label shows the new time in the next turn of the main queue, not a second later.
  dispatch::onMain([] { sharedInstance().showRemainingTime(); });
  const auto timer = NSTimer::scheduledTimer(1.0, true, [] { sharedInstance().refresh(); });
  updateRemainingTimeLabelsTimer = objc::retain(timer);
  // So that it ticks on while the user scrolls.
  NSRunLoop::mainRunLoop().addTimer(timer, NSRunLoop::commonModes());
}

void Indicators::stopUpdatingRemainingTimeLabelsInCC() {
  updateRemainingTimeLabelsTimer->invalidate();
  updateRemainingTimeLabelsTimer = nullptr;
}

void Indicators::refresh() {
  // Nobody sees it; the timer ticks on, and the label is right a second after the screen is on.
  if (!SBBacklightController::sharedInstance().screenIsOn()) return;
  showRemainingTime();
  // After the last value has been shown once more.
  if (!SleepTimer::sharedInstance().timerModeIsRunning()) stopUpdatingRemainingTimeLabelsInCC();
}

void Indicators::showRemainingTime() {
  const double seconds = SleepTimer::sharedInstance().getTimerRemainingTime();
  const auto before = dozewellVcTimeLeftLabel->text().length();
  dozewellVcTimeLeftLabel->setText(NSString(timeFormatted(wholeSeconds(seconds))));
  tellRemainingTime();
  // With hours it is longer. That goes by while the page is seen, and is new to it where the label
  // stood still as it was opened (panel-unit-follows-the-clock).
  if (dozewellVcTimeLeftLabel->text().length() != before) TimeLeftPage::labelChanged();
}

// Texts are looked up once a minute, not at every tick; for a label that was told nothing, at once.
void Indicators::tellRemainingTime() {
  const long minutes = minutesToTell();
  const bool isTold = minutes == toldMinutes && dozewellVcTimeLeftLabel->accessibilityValue();
  if (!dozewellVcTimeLeftLabel || isTold) return;
  toldMinutes = minutes;
  dozewellVcTimeLeftLabel->setAccessibilityValue(spokenTimeLeft());
}

}  // namespace

Class Dozewell2TimeLeftIndicatorsManager::cls() {
  return Indicators::cls();
}

objc::Registration Dozewell2TimeLeftIndicatorsManager::registerClass() {
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
