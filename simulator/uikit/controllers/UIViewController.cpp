#include "simulator/uikit/controllers/UIViewController.h"

#include <algorithm>

#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/application/UIScreen.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {
namespace {

using objc::Object;

// For subclasses.
void ignore(Object) {}
void ignoreAnimated(Object, bool) {}
void ignoreObject(Object, Object) {}

Object nextResponder(Object self) {
  const UIViewController& controller = UIViewController::of(self);
  return controller.loadedView ? UIView::of(controller.loadedView.get()).parent : Object();
}

}  // namespace

UIViewController::~UIViewController() {
  if (loadedView) UIView::of(loadedView.get()).controller = nullptr;
  for (const auto& child : children) of(child.get()).parent = nullptr;
  if (presented) of(presented.get()).presenting = nullptr;
}

Object UIViewController::init() {
  return objc::send<Object, "initWithNibName:bundle:">(self(), nullptr, nullptr);
}

Object UIViewController::initWithNibName_bundle(Object name, Object bundle) {
  nibName = objc::adopt(objc::send<Object, "copy">(name));
  nibBundle = objc::retain(bundle);
  return super<Object, "init">();
}

Object UIViewController::view() {
  if (loadedView) return loadedView;
  objc::send<void, "loadView">(self());
  if (loadedView) objc::send<void, "viewDidLoad">(self());
  return loadedView;
}

void UIViewController::setView(Object view) {
  if (loadedView) UIView::of(loadedView.get()).controller = nullptr;
  loadedView = objc::retain(view);
  if (view) UIView::of(view).controller = Object(self());
}

void UIViewController::loadView() {
  constexpr unsigned long flexibleSize = 2 | 16;
  const CGRect screen{{0, 0}, UIScreen::size()};
  const auto made = objc::adopt(
      objc::send<Object, "initWithFrame:">(objc_alloc(objc_getClass("UIView")), screen));
  objc::send<void, "setAutoresizingMask:">(made.get(), flexibleSize);
  objc::send<void, "setView:">(self(), made.get());
}

void UIViewController::addChild(Object child) {
  if (!child || of(child).parent.get() == self()) return;
  const auto kept = objc::retain(child);
  objc::send<void, "removeFromParentViewController">(child);
  objc::send<void, "willMoveToParentViewController:">(child, Object(self()));
  children.push_back(kept);
  of(child).parent = Object(self());
}

void UIViewController::removeFromParent() {
  if (!parent) return;
  const auto kept = objc::retain(Object(self()));
  auto& siblings = of(std::exchange(parent, nullptr)).children;
  std::erase_if(siblings, [this](const auto& each) { return each.get().get() == self(); });
  objc::send<void, "didMoveToParentViewController:">(self(), nullptr);
}

Object UIViewController::childControllers() const {
  return array(std::vector<Object>(children.begin(), children.end()));
}

void UIViewController::registerClass() {
  StandIn<UIViewController>("UIKit", "UIViewController", "UIResponder")
      .method<"init", &UIViewController::init>()
      .partial<"initWithNibName:bundle:", &UIViewController::initWithNibName_bundle>(
          "loads no layout")
      .readonlyProperty<"nibName", &UIViewController::nibName>()
      .readonlyProperty<"nibBundle", &UIViewController::nibBundle>()
      .method<"nextResponder", &nextResponder>()
      .property<"title", &UIViewController::title>()
      .method<"view", &UIViewController::view>()
      .method<"setView:", &UIViewController::setView>()
      .method<"isViewLoaded", &UIViewController::isViewLoaded>()
      .method<"viewIfLoaded", &UIViewController::viewIfLoaded>()
      .partial<"loadView", &UIViewController::loadView>("loads no layout")
      .method<"viewDidLoad", &ignore>()
      .method<"viewWillLayoutSubviews", &ignore>()
      .method<"viewDidLayoutSubviews", &ignore>()
      .method<"viewWillAppear:", &ignoreAnimated>()
      .method<"viewDidAppear:", &ignoreAnimated>()
      .method<"viewWillDisappear:", &ignoreAnimated>()
      .method<"viewDidDisappear:", &ignoreAnimated>()
      .readonlyProperty<"parentViewController", &UIViewController::parent>()
      .method<"childViewControllers", &UIViewController::childControllers>()
      .method<"addChildViewController:", &UIViewController::addChild>()
      .method<"removeFromParentViewController", &UIViewController::removeFromParent>()
      .method<"willMoveToParentViewController:", &ignoreObject>()
      .method<"didMoveToParentViewController:", &ignoreObject>()
      .readonlyProperty<"presentedViewController", &UIViewController::presented>()
      .readonlyProperty<"presentingViewController", &UIViewController::presenting>()
      .property<"modalPresentationStyle", &UIViewController::modalPresentationStyle>()
      .property<"preferredContentSize", &UIViewController::preferredContentSize>()
      .partial<"_animateIn", &UIViewController::animateIn>("the simulator's own")
      .partial<"presentViewController:animated:completion:", &UIViewController::present>(
          "in place at once; the completion waits for the animation")
      .partial<"dismissViewControllerAnimated:completion:", &UIViewController::dismiss>(
          "gone at once; the completion waits for the animation")
      .finish();
}

}  // namespace sim
