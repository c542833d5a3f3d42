// What the panel's buttons do, and how one page gives way to another.
#include "platform/Dispatch.h"
#include "tweak/engine/Dozewell2Manager.h"
#include "tweak/panel/Dozewell2ViewController.h"
#include "tweak/settings/Dozewell2StorageManager.h"

namespace {

constexpr double seconds = 0.3;

UIKit::Completion hideLater(UIView view) {
  return UIKit::completion([view = objc::retain(view)] { view->setHidden(true); });
}

// The extra second is deliberate: the first thing seen is the whole number that was picked.
long pickedSeconds(UIView page) {
  const auto picker = objc::send<UIDatePicker, "timeSelectorPickerView">(page);
  return long(picker.countDownDuration() + 1.0);
}

long pickedSongs(UIView page) {
  return objc::send<long, "nbSongsSelected">(page);
}

long pickedValue(UIView page, long mode) {
  if (mode == Dozewell2Manager::durationMode) return pickedSeconds(page);
  if (mode == Dozewell2Manager::songCountMode) return pickedSongs(page);
  return 0;
}

}  // namespace

void Dozewell2ViewController::setUpCurrentTimerView() {
  objc::send<void, "setupViewWithMode:">(currentTimerView, selectedMode());
}

void Dozewell2ViewController::hideBottomButtons(bool hide) {
  objc::send<void, "hideBottomButtons:">(currentTimerView, hide);
}

void Dozewell2ViewController::transitionBetweenChooseTimeAndCurrentTimerViewFromChooseTime(
    bool fromChooseTime) {
  view().setHidden(false);
  const UIView source = fromChooseTime ? chooseSnoozeTimeView : currentTimerView;
  const UIView target = fromChooseTime ? currentTimerView : chooseSnoozeTimeView;
  chooseSnoozeTimeViewShowed = !fromChooseTime;
  currentTimerViewShowed = fromChooseTime;
  if (fromChooseTime) setUpCurrentTimerView();
  target.setFrame(source.frame());
  target.setHidden(false);
  UIKit::transition(source, target, seconds,
                    UIKit::transitionCrossDissolve | UIKit::showHideTransitionViews,
                    hideLater(source));
}

// Without the option that shows and hides the two, the platform takes the first out of the panel
// and puts the second in its place. The difference to the other transition is deliberate.
void Dozewell2ViewController::showOnTimerEndsSettingsView() {
  if (!onTimerEndsSettingsView) return;
  onTimerEndsSettingsView->setHidden(false);
  objc::send<void, "restoreSettings">(onTimerEndsSettingsView);
  UIKit::transition(chooseSnoozeTimeView, onTimerEndsSettingsView, seconds,
                    UIKit::transitionCrossDissolve, hideLater(chooseSnoozeTimeView));
}

void Dozewell2ViewController::hideOnTimerEndsSettingsView() {
  if (!onTimerEndsSettingsView) return;
  chooseSnoozeTimeView->setHidden(false);
  UIKit::transition(onTimerEndsSettingsView, chooseSnoozeTimeView, seconds,
                    UIKit::transitionCrossDissolve, hideLater(onTimerEndsSettingsView));
  // At once, not when the transition has ended.
  objc::send<void, "saveSettingsToPrefsPlist">(onTimerEndsSettingsView);
}

void Dozewell2ViewController::validateButtonClicked() {
  auto& engine = Dozewell2Manager::sharedInstance();
  engine.cancelTimer();
  const long mode = selectedMode();
  engine.startTimerWithMode_andValue(mode, pickedValue(chooseSnoozeTimeView, mode));
  dispatch::onMain([panel = retained()] {
    panel->transitionBetweenChooseTimeAndCurrentTimerViewFromChooseTime(true);
    panel->hideBottomButtons(true);
    // Never cancelled: it closes whatever the panel shows by then.
    NSObject(panel->self())
        .performSelectorAfterDelay(
            objc::selector<"dismissDozewell">(),
            Dozewell2StorageManager::sharedInstance().confirmViewAutoDismissTime);
  });
}

void Dozewell2ViewController::cancelButtonClicked() {
  Dozewell2Manager::sharedInstance().reinit();
  transitionBetweenChooseTimeAndCurrentTimerViewFromChooseTime(false);
}

void Dozewell2ViewController::backButtonClicked() {
  dismissDozewell();
}
