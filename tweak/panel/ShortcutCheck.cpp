#include "tweak/panel/ShortcutCheck.h"

#include <utility>

#include "platform/Runwright.h"
#include "tweak/support/CorvaneTweakUtils.h"

namespace {

// Where the maker's packages are found, which the build is told. Part of the message and what is
// copied.
constexpr const char* repositoryAddress = DOZEWELL_REPOSITORY_URL;

// The two buttons of an alert; `accepted` runs when the first is pressed.
template <class Accepted>
void ask(NSString title, NSString message, NSString yes, UIControl box, Accepted accepted) {
  const auto buttons = NSMutableArray::array();
  buttons.addObject(yes);
  buttons.addObject("Later"_ns);
  auto answered = objc::block<void(NSString)>([yes = objc::retain(yes), box = objc::retain(box),
                                               accepted = std::move(accepted)](NSString pressed) {
    if (pressed.isEqualToString(yes)) accepted();
    box->setSelected(false);
  });
  CorvaneTweakUtils::showAlertWithTitle_message_buttonsText_completionHandler(
      title, message, buttons, answered.get());
}

void tellRunnerIsMissing(UIControl box) {
  const auto message = NSMutableString::string();
  message.appendString(
      "To be able to run iOS Shortcuts from Dozewell, you need to install Runwright support "
      "library first. You can get it from my repo "_ns);
  message.appendString(NSString::string(repositoryAddress));
  message.appendString("."_ns);
  ask("Runwright not installed"_ns, message, "Copy repository URL"_ns, box,
      [] { UIPasteboard::generalPasteboard().setString(NSString::string(repositoryAddress)); });
}

void tellShortcutIsMissing(UIControl box, NSString name) {
  const auto message = NSString::stringWithFormat(
      "You first need to create an iOS Shortcut named \"%@\" to use this action."_ns, name);
  ask("Shortcut not created yet"_ns, message, "Create a shortcut"_ns, box, [] {
    UIApplication::sharedApplication().openURL(
        NSURL::URLWithString("shortcuts://create-shortcut"_ns));
  });
}

}  // namespace

void checkShortcut(UIControl box, NSString name) {
  if (!RunwrightManager::isInstalled()) {
    tellRunnerIsMissing(box);
  } else if (!RunwrightManager::sharedManager().workflowNames().containsObject(name)) {
    tellShortcutIsMissing(box, name);
  }
}
