#include "tweak/panel/OnTimerEndsSettingsView.h"

#include "tweak/panel/ShortcutCheck.h"
#include "tweak/support/BundleHelper.h"
#include "tweak/support/HapticFeedbackHelper.h"

using Page = OnTimerEndsSettingsView;

namespace {

objc::Strong<HBPreferences> openPreferences() {
  return HBPreferences::make("com.corvane.dozewell2"_ns);
}

void setIcon(const objc::Weak<UIButton>& button, const char* name) {
  button.load()->setImage(BundleHelper::getImageWithName(NSString::string(name)));
}

}  // namespace

id OnTimerEndsSettingsView::init() {
  const auto owner = objc::adopt(objc::Object(self()));  // init gives up the object it returns not
  auto page = objc::retain(objc::as<UIView>(
      BundleHelper::getBundle().loadNibNamed("OnTimerEndsSettingsView"_ns, owner).firstObject()));
  objc::send<void, "setup">(page.get());
  return page.detach().get();
}

CGRect OnTimerEndsSettingsView::frame() {
  return UIView(self()).superview().frame();
}

void OnTimerEndsSettingsView::setup() {
  setIcon(planeModeButton, "airplaneIcon");
  setIcon(bluetoothButton, "bluetoothIcon");
  setIcon(dndButton, "dndIcon");
  setIcon(runShortcutButton, "shortcutIcon");
  setIcon(customVolumeButton, "customVolumeIcon");
  setIcon(backButton, "backIcon");
  setIcon(toggleStartEndButton, "hourglassStartIcon");
  restoreSettings();
  setCurrentStateIsStart(true);
}

// The boxes of the state that is left are written first, under that state's keys.
void OnTimerEndsSettingsView::setCurrentStateIsStart(bool start) {
  saveSettingsToPrefsPlist();
  currentStateIsStart = start;
  bluetoothButton.load()->setHidden(start);
  customVolumeButton.load()->setHidden(!start);
  titleLabel.load()->setText(
      BundleHelper::getLocalizedStringFor(start ? "ON_TIMER_START"_ns : "ON_TIMER_END"_ns));
  restoreSettings();
}

// The fourth box differs, deliberately: there is no Bluetooth at the start and no volume at the
// end.
template <class Visit>
void OnTimerEndsSettingsView::forEachBox(Visit visit) {
  if (currentStateIsStart) {
    visit(planeModeButton, "onTimerStartsAirplane");
    visit(dndButton, "onTimerStartsDND");
    visit(runShortcutButton, "onTimerStartsRunShortcut");
    visit(customVolumeButton, "onTimerStartsCustomVolume");
  } else {
    visit(planeModeButton, "onTimerEndsAirplane");
    visit(dndButton, "onTimerEndsDND");
    visit(runShortcutButton, "onTimerEndsRunShortcut");
    visit(bluetoothButton, "onTimerEndsBluetooth");
  }
}

void OnTimerEndsSettingsView::restoreSettings() {
  const auto preferences = openPreferences();
  forEachBox([&preferences](const objc::Weak<UIButton>& box, const char* key) {
    objc::send<void, "check:">(box.load().get(), preferences->boolForKey(NSString::string(key)));
  });
}

void OnTimerEndsSettingsView::saveSettingsToPrefsPlist() {
  const auto preferences = openPreferences();
  forEachBox([&preferences](const objc::Weak<UIButton>& box, const char* key) {
    preferences->setBool(objc::send<bool, "isChecked">(box.load().get()), NSString::string(key));
  });
}

// The hourglass turns over at every tap, so that its orientation tells the state.
void OnTimerEndsSettingsView::toggleStateButtonClicked(UIView sender) {
  constexpr double seconds = 0.4;
  constexpr double sineOfPi = 1.2246467991473532e-16, cosineOfPi = -1;
  setCurrentStateIsStart(!currentStateIsStart);
  UIKit::animate(seconds, [sender = objc::retain(sender)] {
    sender->setTransform(sender->transform().rotated(sineOfPi, cosineOfPi));
  });
  HapticFeedbackHelper::sendImpact();
}

void OnTimerEndsSettingsView::runShortcutButtonClicked(UIControl sender) {
  if (!objc::send<bool, "isChecked">(sender)) return;
  checkShortcut(sender, currentStateIsStart ? "Dozewell Start"_ns : "Dozewell End"_ns);
}

Class OnTimerEndsSettingsView::registerClass() {
  return objc::ClassBuilder<Page>("OnTimerEndsSettingsView", "UIView")
      .method<"setCurrentStateIsStart:", &Page::setCurrentStateIsStart>()
      .property<"currentStateIsStart", &Page::currentStateIsStart>()
      .property<"titleLabel", &Page::titleLabel>()
      .property<"backButton", &Page::backButton>()
      .property<"toggleStartEndButton", &Page::toggleStartEndButton>()
      .property<"planeModeButton", &Page::planeModeButton>()
      .property<"dndButton", &Page::dndButton>()
      .property<"runShortcutButton", &Page::runShortcutButton>()
      .property<"bluetoothButton", &Page::bluetoothButton>()
      .property<"customVolumeButton", &Page::customVolumeButton>()
      .method<"init", &Page::init>()
      .method<"frame", &Page::frame>()
      .method<"setup", &Page::setup>()
      .method<"restoreSettings", &Page::restoreSettings>()
      .method<"saveSettingsToPrefsPlist", &Page::saveSettingsToPrefsPlist>()
      .method<"toggleStateButtonClicked:", &Page::toggleStateButtonClicked>()
      .method<"runShortcutButtonClicked:", &Page::runShortcutButtonClicked>()
      .finish();
}
