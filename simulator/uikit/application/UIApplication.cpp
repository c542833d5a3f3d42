#include "simulator/uikit/application/UIApplication.h"

#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/application/UIScreen.h"
#include "simulator/uikit/application/UIWindow.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {
namespace {

using objc::Object;

struct Application {
  Object object;  // owned, and never given up
};

Object& theApplication() {
  return Phone::current().state<Application>().object;
}

Object keyWindow(Object) {
  return UIWindow::keyWindow();
}

}  // namespace

Object UIApplication::sharedApplication() {
  return theApplication();
}

Object UIApplication::init() {
  const Object made = super<Object, "init">();
  if (!theApplication()) theApplication() = objc::retain(made).detach();
  return made;
}

Object UIApplication::windows() const {
  const auto visible = UIWindow::applicationWindows();
  return array(std::vector<Object>(visible.begin(), visible.end()));
}

void UIApplication::openURL(Object url, Object, objc::Block<void(bool)> completion) {
  Phone& phone = Phone::current();
  phone.journal.record("-[UIApplication openURL:" + description(url) + ']');
  if (!completion) return;
  auto kept = objc::adopt(objc::send<objc::Block<void(bool)>, "copy">(completion));
  phone.queue.addNow([kept = std::move(kept)] { kept.get()(true); });
}

void UIApplication::rotate(long to) {
  if (isRotationLocked) return;
  const CGSize before = UIScreen::size();
  orientation = to;
  const CGSize now = UIScreen::size();
  for (const auto& window : UIWindow::visibleWindows()) {
    if (UIView::of(window.get()).geometry().bounds.size == before)
      objc::send<void, "setFrame:">(window.get(), CGRect{{}, now});
    // Also where the size stays the same, the interface is laid out again.
    const Object root = UIWindow::of(window.get()).rootViewController;
    objc::send<void, "setNeedsLayout">(objc::send<Object, "view">(root));
  }
}

void UIApplication::registerClass() {
  StandIn<UIApplication>("UIKit", "UIApplication", "UIResponder")
      .classMethod<"sharedApplication", &UIApplication::sharedApplication>()
      .partial<"init", &UIApplication::init>("a second application is no error")
      .partial<"delegate", &UIApplication::delegate>("always nil")
      .partial<"keyWindow", &keyWindow>(
          "never nil once one was shown, and Control Center's while that is open; neither is sure")
      .method<"windows", &UIApplication::windows>()
      .readonlyProperty<"_activeInterfaceOrientation", &UIApplication::orientation>()
      .partial<"openURL:options:completionHandler:", &UIApplication::openURL>(
          "opens nothing, but says that it did")
      .finish();
}

}  // namespace sim
