#include "tweak/support/CorvaneTweakUtils.h"

#include "objc/Class.h"
#include "platform/Dispatch.h"

namespace {

// Before iOS 15 an alert needs a window of its own to stand over everything. The window is not
// kept: how long it lives is the platform's affair.
void presentInWindow(UIAlertController alert) {
  const auto controller = UIViewController::make();
  controller->view().setBackgroundColor(UIColor::clear());
  const auto window = UIWindow::make(UIScreen::mainScreen().bounds());
  window->setRootViewController(controller);
  window->setBackgroundColor(UIColor::clear());
  // Over the system's own alerts.
  window->setWindowLevel(UIWindow::alertLevel + 1.0);
  window->makeKeyAndVisible();
  controller->present(alert, true);
}

struct CorvaneTweakUtilsImplementation : objc::Implementation<CorvaneTweakUtilsImplementation> {
  using Answer = CorvaneTweakUtils::Answer;

  static void showAlertWithTitle_message_buttonText(NSString title, NSString message,
                                                    NSString button);
  static void showAlertWithTitle_message_buttonsText_completionHandler(NSString title,
                                                                       NSString message,
                                                                       NSArray buttons,
                                                                       Answer answer);
  static void showAlertControllerOverEverything(UIAlertController alert);
  static UIViewController topMostController();
  static bool isAlreadyShowingAnAlert();

  static bool view_isDescendentOfViewOfClass(UIView view, Class cls);  // not the view itself
  static NSString trimmedString(NSString text);
  static bool stringIsEmpty(NSString text);
  static int getRandomNumberBetween_to(int from, int to);  // both included
};

using Utils = CorvaneTweakUtilsImplementation;

void Utils::showAlertWithTitle_message_buttonText(NSString title, NSString message,
                                                  NSString button) {
  const auto buttons = NSMutableArray::array();
  buttons.addObject(button);
  showAlertWithTitle_message_buttonsText_completionHandler(title, message, buttons, nullptr);
}

void Utils::showAlertWithTitle_message_buttonsText_completionHandler(NSString title,
                                                                     NSString message,
                                                                     NSArray buttons,
                                                                     Answer answer) {
  const auto alert = UIAlertController::make(title, message);
  for (unsigned long i = 0; i < buttons.count(); ++i) {
    const auto text = objc::as<NSString>(buttons.objectAtIndex(i));
    auto answered = objc::copy(answer);
    alert.addAction(UIAlertAction::make(
        text,
        [text = objc::retain(text), answered = std::move(answered)] { answered.get()(text); }));
  }
  showAlertControllerOverEverything(alert);
}

void Utils::showAlertControllerOverEverything(UIAlertController alert) {
  if (UIDevice::systemIsAtLeast(15.0F)) {
    topMostController().present(alert, true);
  } else {
    // Whatever thread asked: windows are the main thread's.
    dispatch::onMain([alert = objc::retain(alert)] { presentInWindow(alert); });
  }
}

UIViewController Utils::topMostController() {
  auto controller = UIApplication::sharedApplication().keyWindow().rootViewController();
  while (const auto presented = controller.presentedViewController()) controller = presented;
  return controller;
}

bool Utils::isAlreadyShowingAnAlert() {
  return isKindOf<UIAlertController>(topMostController());
}

bool Utils::view_isDescendentOfViewOfClass(UIView view, Class cls) {
  for (auto ancestor = view.superview(); ancestor; ancestor = ancestor.superview()) {
    if (ancestor.isKindOfClass(cls)) return true;
  }
  return false;
}

NSString Utils::trimmedString(NSString text) {
  return text.stringByTrimmingWhitespaceAndNewlines();
}

// No string at all is not an empty one: nil is never compared. Another extension that asks would
// be told YES for a missing text if it were (support-strings).
bool Utils::stringIsEmpty(NSString text) {
  return trimmedString(text).isEqualToString(""_ns);
}

// In unsigned arithmetic of 32 bits, which wraps. Numbers at the lower end come a little more
// often when the range does not divide 2^32.
int Utils::getRandomNumberBetween_to(int from, int to) {
  const unsigned int range = unsigned(to) - unsigned(from) + 1;
  auto* draw = platform::hostFunction<"arc4random", unsigned int()>();
  const unsigned int drawn = draw != nullptr ? draw() : 0;
  // A range of 0 is one of all 2^32 numbers, wrapped.
  return int(unsigned(from) + (range == 0 ? drawn : drawn % range));
}

}  // namespace

Class CorvaneTweakUtils::cls() {
  return Utils::cls();
}

objc::Registration CorvaneTweakUtils::registerClass() {
  return objc::ClassBuilder<Utils>("CorvaneTweakUtils", "NSObject")
      .classMethod<"showAlertWithTitle:message:buttonText:",
                   &Utils::showAlertWithTitle_message_buttonText>()
      .classMethod<"showAlertWithTitle:message:buttonsText:completionHandler:",
                   &Utils::showAlertWithTitle_message_buttonsText_completionHandler>()
      .classMethod<"showAlertControllerOverEverything:",
                   &Utils::showAlertControllerOverEverything>()
      .classMethod<"topMostController", &Utils::topMostController>()
      .classMethod<"isAlreadyShowingAnAlert", &Utils::isAlreadyShowingAnAlert>()
      .classMethod<"view:isDescendentOfViewOfClass:", &Utils::view_isDescendentOfViewOfClass>()
      .classMethod<"trimmedString:", &Utils::trimmedString>()
      .classMethod<"stringIsEmpty:", &Utils::stringIsEmpty>()
      .classMethod<"getRandomNumberBetween:to:", &Utils::getRandomNumberBetween_to>()
      .finish();
}
