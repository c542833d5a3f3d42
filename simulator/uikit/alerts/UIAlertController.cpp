#include "simulator/uikit/alerts/UIAlertController.h"

#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/alerts/AlertView.h"
#include "simulator/uikit/alerts/UIAlertAction.h"
#include "simulator/uikit/application/UIWindow.h"
#include "simulator/uikit/controllers/UIViewController.h"

namespace sim {
namespace {

using objc::Object;

void setTitle(Object self, Object title) {
  UIAlertController::of(self).alertTitle = objc::adopt(objc::send<Object, "copy">(title));
}

// What is presented last over the window's root.
Object topOf(const UIWindow& window) {
  Object top = window.rootViewController;
  while (top && UIViewController::of(top).presented) top = UIViewController::of(top).presented;
  return top;
}

}  // namespace

Object UIAlertController::make(id cls, Object title, Object message, long style) {
  auto made = makeOf(cls);
  UIAlertController& state = of(made.get());
  state.alertTitle = objc::adopt(objc::send<Object, "copy">(title));
  state.message = objc::adopt(objc::send<Object, "copy">(message));
  state.preferredStyle = style;
  return autorelease(std::move(made));
}

void UIAlertController::addAction(Object action) {
  requireObject(Object(self()), "addAction:", action);
  actions.push_back(objc::retain(action));
}

Object UIAlertController::allActions() const {
  return array(std::vector<Object>(actions.begin(), actions.end()));
}

Object UIAlertController::actionTitled(std::string_view title) const {
  for (const auto& action : actions)
    if (text(UIAlertAction::of(action.get()).title) == title) return action;
  return nullptr;
}

void UIAlertController::loadView() {
  const auto made = AlertView::showing(*this);
  if (!made) return super<void, "loadView">();
  objc::send<void, "setView:">(self(), made.get());
}

void UIAlertController::animateIn() {
  const Object view = objc::send<Object, "view">(self());
  if (AlertView* state = stateOf<AlertView>(view)) state->animateIn();
}

void UIAlertController::press(Object action) {
  const auto kept = objc::retain(action);
  const auto gone = objc::block<void()>([kept] {
    const auto handler = UIAlertAction::of(kept.get()).handler;
    handler.get()(kept.get());
  });
  objc::send<void, "dismissViewControllerAnimated:completion:">(self(), false, gone.get());
}

Object UIAlertController::shown() {
  const auto windows = UIWindow::visibleWindows();
  for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
    const Object top = topOf(UIWindow::of(window->get()));
    if (isA<UIAlertController>(top)) return top;
  }
  return nullptr;
}

void UIAlertController::registerClass() {
  StandIn<UIAlertController>("UIKit", "UIAlertController", "UIViewController")
      .factory<"alertControllerWithTitle:message:preferredStyle:", &UIAlertController::make>()
      .readonlyProperty<"title", &UIAlertController::alertTitle>()
      .method<"setTitle:", &setTitle>()
      .property<"message", &UIAlertController::message>()
      .readonlyProperty<"preferredStyle", &UIAlertController::preferredStyle>()
      .partial<"loadView", &UIAlertController::loadView>("light; action sheets look like alerts")
      .method<"_animateIn", &UIAlertController::animateIn>()
      .method<"addAction:", &UIAlertController::addAction>()
      .method<"actions", &UIAlertController::allActions>()
      .finish();
}

}  // namespace sim
