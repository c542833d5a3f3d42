#include "tweak/support/CorvaneTweakUtils.h"

#include "platform/Dispatch.h"

using Utils = CorvaneTweakUtils;

namespace {

// Before iOS 15 an alert needs a window of its own to stand over everything. The window is not
// kept: how long it lives is the platform's affair.
void presentInWindow(UIAlertController alert) {
  const auto controller = UIViewController::make();
  controller->view().setBackgroundColor(UIColor::clear());
  const auto window = UIWindow::make(UIScreen::mainScreen().bounds());
  window->setRootViewController(controller);
  window->setBackgroundColor(UIColor::clear());
  window->setWindowLevel(UIWindow::alertLevel + 1.0);
  window->makeKeyAndVisible();
  controller->present(alert, true);
}

bool isAtLeastIos15() {
  return UIDevice::currentDevice().systemVersion().floatValue() >= 15.0f;
}

}  // namespace

void CorvaneTweakUtils::showAlertWithTitle_message_buttonText(NSString title, NSString message,
                                                              NSString button) {
  const auto buttons = NSMutableArray::array();
  buttons.addObject(button);
  showAlertWithTitle_message_buttonsText_completionHandler(title, message, buttons, nullptr);
}

void CorvaneTweakUtils::showAlertWithTitle_message_buttonsText_completionHandler(NSString title,
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

void CorvaneTweakUtils::showAlertControllerOverEverything(UIAlertController alert) {
  if (isAtLeastIos15()) {
    topMostController().present(alert, true);
  } else {
    dispatch::onMain([alert = objc::retain(alert)] { presentInWindow(alert); });
  }
}

UIViewController CorvaneTweakUtils::topMostController() {
  auto controller = UIApplication::sharedApplication().keyWindow().rootViewController();
  while (const auto presented = controller.presentedViewController()) controller = presented;
  return controller;
}

bool CorvaneTweakUtils::isAlreadyShowingAnAlert() {
  return topMostController().isKindOfClass(objc_getClass("UIAlertController"));
}

bool CorvaneTweakUtils::view_isDescendentOfViewOfClass(UIView view, Class cls) {
  for (auto ancestor = view.superview(); ancestor; ancestor = ancestor.superview()) {
    if (ancestor.isKindOfClass(cls)) return true;
  }
  return false;
}

NSString CorvaneTweakUtils::trimmedString(NSString text) {
  return text.stringByTrimmingWhitespaceAndNewlines();
}

bool CorvaneTweakUtils::stringIsEmpty(NSString text) {
  return trimmedString(text).isEqualToString(""_ns);
}

int CorvaneTweakUtils::getRandomNumberBetween_to(int from, int to) {
  const unsigned int range = unsigned(to) - unsigned(from) + 1;
  auto* draw = platform::hostFunction<"arc4random", unsigned int()>();
  // All 2^32 numbers are wanted when the range wraps to 0.
  const unsigned int drawn = draw != nullptr ? draw() : 0;
  return int(unsigned(from) + (range == 0 ? drawn : drawn % range));
}

Class CorvaneTweakUtils::registerClass() {
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
