#include "simulator/controlcenter/CCUIContentModuleContainerViewController.h"

#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {

using objc::Object;
using Container = CCUIContentModuleContainerViewController;

Object Container::initWithModuleIdentifier_contentModule(Object identifier, Object module) {
  moduleIdentifier = objc::adopt(objc::send<Object, "copy">(identifier));
  contentModule = objc::retain(module);
  return super<Object, "initWithNibName:bundle:">(Object(), Object());
}

Object Container::contentViewController() const {
  return objc::send<Object, "contentViewController">(contentModule.get());
}

void Container::loadView() {
  const auto view = objc::adopt(objc::send<Object, "new">(objc_getClass("UIControl")));
  objc::send<void, "setClipsToBounds:">(view.get(), true);
  addTapTarget(view, Object(self()), objc::selector<"_didTapModule:">());
  objc::send<void, "setView:">(self(), view.get());
}

void Container::viewDidLoad() {
  super<void, "viewDidLoad">();
  addChildController(Object(self()), contentViewController());
}

void Container::viewWillLayoutSubviews() {
  super<void, "viewWillLayoutSubviews">();
  setFrame(objc::send<Object, "view">(contentViewController()),
           {{0, 0}, sizeOf(objc::send<Object, "view">(self()))});
}

// Room is made from the outside in: the content, too, lays itself out in its new size.
void Container::setExpanded(bool expands) {
  if (expanded == expands) return;
  expanded = expands;
  const Object everything =
      objc::send<Object, "viewIfLoaded">(objc::send<Object, "parentViewController">(self()));
  objc::send<void, "setNeedsLayout">(everything);
  objc::send<void, "willTransitionToExpandedContentMode:">(contentViewController(), expands);
  animateLayout(everything);
}

void Container::didTapModule(Object) {
  if (!expanded) objc::send<void, "setExpanded:">(self(), true);
}

void Container::registerClass() {
  StandIn<Container>("ControlCenterUI", "CCUIContentModuleContainerViewController",
                     "UIViewController")
      .method<"initWithModuleIdentifier:contentModule:",
              &Container::initWithModuleIdentifier_contentModule>()
      .readonlyProperty<"moduleIdentifier", &Container::moduleIdentifier>()
      .readonlyProperty<"contentModule", &Container::contentModule>()
      .method<"contentViewController", &Container::contentViewController>()
      .method<"loadView", &Container::loadView>()
      .method<"viewDidLoad", &Container::viewDidLoad>()
      .method<"viewWillLayoutSubviews", &Container::viewWillLayoutSubviews>()
      .readonlyProperty<"isExpanded", &Container::expanded>()
      .partial<"setExpanded:", &Container::setExpanded>(
          "expands the module itself, where a phone is told by the transition that does")
      .partial<"_didTapModule:", &Container::didTapModule>(
          "a tap does what a long press does, too, on the platform")
      .finish();
}

}  // namespace sim
