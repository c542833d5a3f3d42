#include "simulator/uikit/application/UIWindow.h"

#include <algorithm>

#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/application/UIScreen.h"
#include "simulator/uikit/views/ViewLayout.h"
#include "simulator/uikit/views/ViewTree.h"

namespace sim {
namespace {

using objc::Object;

struct Windows {
  std::vector<UIWindow*> all;  // also hidden ones
  UIWindow* key = nullptr;
  unsigned long timesShown = 0;
};

Windows& windows() {
  return Phone::current().state<Windows>();
}

Object init(Object self) {
  return objc::send<Object, "initWithFrame:">(self, CGRect{{0, 0}, UIScreen::size()});
}

bool isKeyWindow(Object self) {
  return UIWindow::keyWindow() == self;
}

}  // namespace

UIWindow::UIWindow() {
  windows().all.push_back(this);
}

UIWindow::~UIWindow() {
  std::erase(windows().all, this);
  if (windows().key == this) windows().key = nullptr;
}

Object UIWindow::initWithFrame(CGRect frame) {
  const Object made = super<Object, "initWithFrame:">(frame);
  if (made) super<void, "setHidden:">(true);  // until it is shown
  return made;
}

void UIWindow::setRootViewController(Object controller) {
  if (rootViewController.get() == controller) return;
  const auto last = std::exchange(rootViewController, objc::retain(controller));
  if (last && objc::send<bool, "isViewLoaded">(last.get()))
    removeFromSuperview(objc::send<Object, "view">(last.get()));
  if (!UIView::of(self()).isHidden()) showRoot();
}

void UIWindow::showRoot() {
  if (!rootViewController) return;
  const Object view = objc::send<Object, "view">(rootViewController.get());
  if (!view || UIView::of(view).parent.get() == self()) return;
  objc::send<void, "setFrame:">(view, UIView::of(self()).geometry().bounds);
  insertSubview(Object(self()), view, 0);
}

void UIWindow::setHidden(bool hidden) {
  super<void, "setHidden:">(hidden);
  if (hidden) {
    if (windows().key == this) windows().key = nullptr;
    return;
  }
  shownAs = ++windows().timesShown;
  showRoot();
  queueLayoutPass();
}

void UIWindow::makeKeyWindow() {
  windows().key = this;
}

void UIWindow::makeKeyAndVisible() {
  objc::send<void, "setHidden:">(self(), false);
  objc::send<void, "makeKeyWindow">(self());
}

// The root's view fills the window, whatever its autoresizing mask.
void UIWindow::layoutSubviews() {
  super<void, "layoutSubviews">();
  if (!rootViewController || !objc::send<bool, "isViewLoaded">(rootViewController.get())) return;
  const Object view = objc::send<Object, "view">(rootViewController.get());
  if (UIView::of(view).parent.get() == self())
    objc::send<void, "setFrame:">(view, UIView::of(self()).geometry().bounds);
}

std::vector<objc::Strong<Object>> UIWindow::visibleWindows() {
  std::vector<UIWindow*> visible;
  for (UIWindow* window : windows().all)
    if (!UIView::of(window->self()).isHidden()) visible.push_back(window);
  std::sort(visible.begin(), visible.end(), [](const UIWindow* a, const UIWindow* b) {
    return std::pair(a->windowLevel, a->shownAs) < std::pair(b->windowLevel, b->shownAs);
  });
  std::vector<objc::Strong<Object>> kept;
  for (UIWindow* window : visible) kept.push_back(objc::retain(Object(window->self())));
  return kept;
}

std::vector<objc::Strong<Object>> UIWindow::applicationWindows() {
  auto shown = visibleWindows();
  std::erase_if(shown, [](const auto& window) { return of(window.get()).isOfTheSystem; });
  return shown;
}

// When the key window goes the uppermost of those that remain takes its place.
Object UIWindow::keyWindow() {
  if (windows().key != nullptr) return Object(windows().key->self());
  const auto visible = applicationWindows();
  return visible.empty() ? Object() : autorelease(visible.back());
}

void UIWindow::registerClass() {
  StandIn<UIWindow>("UIKit", "UIWindow", "UIView")
      .method<"init", &init>()
      .method<"initWithFrame:", &UIWindow::initWithFrame>()
      .readonlyProperty<"rootViewController", &UIWindow::rootViewController>()
      .method<"setRootViewController:", &UIWindow::setRootViewController>()
      .property<"windowLevel", &UIWindow::windowLevel>()
      .method<"setHidden:", &UIWindow::setHidden>()
      .method<"isKeyWindow", &isKeyWindow>()
      .method<"makeKeyWindow", &UIWindow::makeKeyWindow>()
      .partial<"makeKeyAndVisible", &UIWindow::makeKeyAndVisible>(
          "no window needs a scene, without which a phone may show none")
      .method<"layoutSubviews", &UIWindow::layoutSubviews>()
      .finish();
}

}  // namespace sim
