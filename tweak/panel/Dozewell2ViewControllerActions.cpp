// What the panel's buttons do, and how one page gives way to another.
#include "platform/Dispatch.h"
#include "tweak/engine/Dozewell2Manager.h"
#include "tweak/panel/Dozewell2ViewControllerImplementation.h"
#include "tweak/settings/Dozewell2StorageManager.h"
#include "tweak/support/Arithmetic.h"

using Panel = Dozewell2ViewControllerImplementation;

namespace {

constexpr double seconds = 0.3;

UIKit::Completion hideLater(UIView view) {
  return UIKit::completion([view = objc::retain(view)] { view->setHidden(true); });
}

// One second more than was picked: the timer is seen a moment later, and the first number is then
// the one that was picked. Without it 45 minutes would begin as 44:59 (panel-confirms-one-minute).
long pickedSeconds(UIDatePicker picker) {
  return saturatingCast<long>(picker.countDownDuration() + 1.0);
}

long pickedValue(ChooseSnoozeTimeView page, long mode) {
  if (mode == Dozewell2Manager::durationMode) return pickedSeconds(page.timeSelectorPickerView());
  if (mode == Dozewell2Manager::songCountMode) return page.nbSongsSelected();
  return 0;
}

}  // namespace

void Panel::transitionBetweenChooseTimeAndCurrentTimerViewFromChooseTime(bool fromChooseTime) {
  view().setHidden(false);
  const UIView choosing = chooseSnoozeTimeView, running = currentTimerView;
  const UIView source = fromChooseTime ? choosing : running;
  const UIView target = fromChooseTime ? running : choosing;
  chooseSnoozeTimeViewShowed = !fromChooseTime;
  currentTimerViewShowed = fromChooseTime;
  if (fromChooseTime) currentTimerView->setupViewWithMode(selectedMode());
  target.setFrame(source.frame());
  target.setHidden(false);
  UIKit::transition(source, target, seconds,
                    UIKit::transitionCrossDissolve | UIKit::showHideTransitionViews,
                    hideLater(source));
}

// Without the option that shows and hides the two, the platform takes the first out of the panel
// and puts the second in its place. With it, as in the transition above, the page for choosing
// would stay in the panel beneath, and the panel would have three views where it has two: nothing
// that a user could see, but a script or an extension that counts them
// (panel-opens-the-actions-page).
void Panel::showOnTimerEndsSettingsView() {
  if (!onTimerEndsSettingsView) return;
  onTimerEndsSettingsView->setHidden(false);
  onTimerEndsSettingsView->restoreSettings();
  UIKit::transition(chooseSnoozeTimeView, onTimerEndsSettingsView, seconds,
                    UIKit::transitionCrossDissolve, hideLater(chooseSnoozeTimeView));
}

void Panel::hideOnTimerEndsSettingsView() {
  if (!onTimerEndsSettingsView) return;
  chooseSnoozeTimeView->setHidden(false);
  UIKit::transition(onTimerEndsSettingsView, chooseSnoozeTimeView, seconds,
                    UIKit::transitionCrossDissolve, hideLater(onTimerEndsSettingsView));
  // At once, not when the transition has ended.
  onTimerEndsSettingsView->saveSettingsToPrefsPlist();
}

void Panel::validateButtonClicked() {
  const auto engine = Dozewell2Manager::sharedInstance();
  engine.cancelTimer();
  const long mode = selectedMode();
  engine.startTimerWithMode_andValue(mode, pickedValue(chooseSnoozeTimeView, mode));
  dispatch::onMain([panel = retained()] {
    panel->transitionBetweenChooseTimeAndCurrentTimerViewFromChooseTime(true);
    panel->currentTimerView->hideBottomButtons(true);
    // Never cancelled: it closes whatever the panel shows by then.
    NSObject(panel->self())
        .performSelectorAfterDelay(
            objc::selector<"dismissDozewell">(),
            Dozewell2StorageManager::sharedInstance().confirmViewAutoDismissTime());
  });
}

void Panel::cancelButtonClicked() {
  Dozewell2Manager::sharedInstance().reinit();
  transitionBetweenChooseTimeAndCurrentTimerViewFromChooseTime(false);
}

void Panel::backButtonClicked() {
  dismissDozewell();
}
