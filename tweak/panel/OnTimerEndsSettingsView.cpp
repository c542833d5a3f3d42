#include "tweak/panel/OnTimerEndsSettingsView.h"

#include "objc/Class.h"
#include "platform/Cephei.h"
#include "tweak/panel/CheckboxButton.h"
#include "tweak/panel/PageLayout.h"
#include "tweak/panel/ShortcutCheck.h"
#include "tweak/settings/Dozewell2StorageManager.h"
#include "tweak/support/BundleHelper.h"
#include "tweak/support/HapticFeedbackHelper.h"
#include "tweak/support/SpokenText.h"

namespace {

struct OnTimerEndsSettingsViewImplementation
    : objc::Implementation<OnTimerEndsSettingsViewImplementation> {
  bool currentStateIsStart;
  // All from the layout.
  objc::Weak<UILabel> titleLabel;
  objc::Weak<UIButton> backButton;
  objc::Weak<UIButton> toggleStartEndButton;
  objc::Weak<CheckboxButton> planeModeButton;
  objc::Weak<CheckboxButton> dndButton;
  objc::Weak<CheckboxButton> runShortcutButton;
  objc::Weak<CheckboxButton> bluetoothButton;     // end actions only
  objc::Weak<CheckboxButton> customVolumeButton;  // start actions only

  id init();  // the view that the layout holds, in place of this one
  CGRect frame();
  void setup();
  void setCurrentStateIsStart(bool start);
  void restoreSettings();
  void saveSettingsToPrefsPlist();
  void toggleStateButtonClicked(UIView sender);
  void runShortcutButtonClicked(CheckboxButton sender);

 private:
  void describeButtons();
  // Calls visit(box, key) for the four boxes of the current state, in order.
  template <class Visit>
  void forEachBox(Visit visit);
};

using Page = OnTimerEndsSettingsViewImplementation;

objc::Strong<HBPreferences> openPreferences() {
  return HBPreferences::make("com.corvane.dozewell2"_ns);
}

void setIcon(UIButton button, const char* name) {
  button.setImage(BundleHelper::getImageWithName(NSString::string(name)));
}

void setSpoken(UIButton button, const char* key) {
  button.setAccessibilityLabel(SpokenText::localized(key));
}

id Page::init() {
  auto page = pageFromLayout("OnTimerEndsSettingsView"_ns, self());
  objc::as<OnTimerEndsSettingsView>(page).setup();
  return page.detach().get();
}

// That of the view which holds this one, as for the other pages (end-frame-is-its-superviews).
CGRect Page::frame() {
  return UIView(self()).superview().frame();
}

void Page::setup() {
  setIcon(planeModeButton.load().get(), "airplaneIcon");
  setIcon(bluetoothButton.load().get(), "bluetoothIcon");
  setIcon(dndButton.load().get(), "dndIcon");
  setIcon(runShortcutButton.load().get(), "shortcutIcon");
  setIcon(customVolumeButton.load().get(), "customVolumeIcon");
  // An arrow to where the page came from: the other side where lines run from right to left.
  backButton.load()->setImage(
      BundleHelper::getImageWithName("backIcon"_ns).imageFlippedForRightToLeftLayoutDirection());
  setIcon(toggleStartEndButton.load().get(), "hourglassStartIcon");
  describeButtons();
  restoreSettings();
  setCurrentStateIsStart(true);
}

// For a screen reader; what the hourglass does depends on the state.
void Page::describeButtons() {
  setSpoken(planeModeButton.load().get(), "AIRPLANE_MODE");
  setSpoken(bluetoothButton.load().get(), "BLUETOOTH");
  setSpoken(dndButton.load().get(), "DO_NOT_DISTURB");
  setSpoken(runShortcutButton.load().get(), "SHORTCUT");
  setSpoken(customVolumeButton.load().get(), "CUSTOM_VOLUME");
  backButton.load()->setAccessibilityLabel(BundleHelper::getLocalizedStringFor("BACK"_ns));
}

// The boxes of the state that is left are written first, under that state's keys.
void Page::setCurrentStateIsStart(bool start) {
  saveSettingsToPrefsPlist();
  currentStateIsStart = start;
  bluetoothButton.load()->setHidden(start);
  customVolumeButton.load()->setHidden(!start);
  titleLabel.load()->setText(
      BundleHelper::getLocalizedStringFor(start ? "ON_TIMER_START"_ns : "ON_TIMER_END"_ns));
  setSpoken(toggleStartEndButton.load().get(), start ? "SHOW_END_ACTIONS" : "SHOW_START_ACTIONS");
  restoreSettings();
}

// The fourth box differs: Bluetooth is cut at the end alone and the volume set at the start alone,
// and there are settings for no more. A fifth box would be one that does nothing
// (end-boxes-share-their-row, end-saves-the-start-actions, end-saves-the-end-actions).
template <class Visit>
void Page::forEachBox(Visit visit) {
  if (currentStateIsStart) {
    visit(planeModeButton, setting_key::onTimerStartsAirplane);
    visit(dndButton, setting_key::onTimerStartsDND);
    visit(runShortcutButton, setting_key::onTimerStartsRunShortcut);
    visit(customVolumeButton, setting_key::onTimerStartsCustomVolume);
  } else {
    visit(planeModeButton, setting_key::onTimerEndsAirplane);
    visit(dndButton, setting_key::onTimerEndsDND);
    visit(runShortcutButton, setting_key::onTimerEndsRunShortcut);
    visit(bluetoothButton, setting_key::onTimerEndsBluetooth);
  }
}

void Page::restoreSettings() {
  const auto preferences = openPreferences();
  forEachBox([&preferences](const objc::Weak<CheckboxButton>& box, const char* key) {
    box.load()->check(preferences->boolForKey(NSString::string(key)));
  });
}

void Page::saveSettingsToPrefsPlist() {
  const auto preferences = openPreferences();
  forEachBox([&preferences](const objc::Weak<CheckboxButton>& box, const char* key) {
    preferences->setBool(box.load()->isChecked(), NSString::string(key));
  });
}

// The hourglass turns over at every tap, so that its orientation tells the state.
void Page::toggleStateButtonClicked(UIView sender) {
  constexpr double seconds = 0.4;
  constexpr double sineOfPi = 1.2246467991473532e-16, cosineOfPi = -1;
  setCurrentStateIsStart(!currentStateIsStart);
  UIKit::animate(seconds, [sender = objc::retain(sender)] {
    sender->setTransform(sender->transform().rotated(sineOfPi, cosineOfPi));
  });
  HapticFeedbackHelper::sendImpact();
}

// Runs when the box has toggled itself.
void Page::runShortcutButtonClicked(CheckboxButton sender) {
  if (!sender.isChecked()) return;
  checkShortcut(sender, currentStateIsStart ? "Dozewell Start"_ns : "Dozewell End"_ns);
}

}  // namespace

objc::Strong<OnTimerEndsSettingsView> OnTimerEndsSettingsView::make() {
  return Page::make<OnTimerEndsSettingsView>();
}

objc::Registration OnTimerEndsSettingsView::registerClass() {
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
