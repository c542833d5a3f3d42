#include "simulator/controlcenter/CCUIContentModuleContainerViewController.h"

#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {

using objc::Object;
using Container = CCUIContentModuleContainerViewController;

namespace {

constexpr double transitionSeconds = 0.3;

template <objc::FixedString Selector, class... Arguments>
void tellIfItAnswers(Object content, Arguments... arguments) {
  if (objc::send<bool, "respondsToSelector:">(content, objc::selector<Selector>()))
    objc::send<void, Selector>(content, arguments...);
}

}  // namespace

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

void Container::expandModule() {
  Phone::current().queue.addNow([weak = objc::weak(Object(self()))] {
    if (const auto container = weak.load()) of(container.get()).transition(true, true);
  });
}

void Container::dismissExpandedModule(bool animated) {
  transition(false, animated);
}

void Container::transition(bool expands, bool animated) {
  const bool changes = expanded != expands;
  objc::send<void, "setExpanded:">(self(), expands);
  if (!changes) return;
  const Object content = contentViewController();
  const Object everything =
      objc::send<Object, "viewIfLoaded">(objc::send<Object, "parentViewController">(self()));
  tellIfItAnswers<"willTransitionToExpandedContentMode:">(content, expands);
  const double seconds = animated ? transitionSeconds : 0;
  changeAnimated(seconds, [content, everything] {
    // Room is made from the outside in: the content, too, lays itself out in its new size.
    objc::send<void, "setNeedsLayout">(everything);
    tellIfItAnswers<"viewWillTransitionToSize:withTransitionCoordinator:">(
        content, sizeOf(everything), Object());
    objc::send<void, "layoutIfNeeded">(everything);
  });
  Phone& phone = Phone::current();
  phone.queue.add(
      phone.clock.uptime() + nanoseconds(seconds), [weak = objc::weak(content), expands] {
        tellIfItAnswers<"didTransitionToExpandedContentMode:">(weak.load().get(), expands);
      });
}

void Container::didTapModule(Object) {
  if (!expanded) objc::send<void, "expandModule">(self());
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
      .method<"setExpanded:", &Container::setExpanded>()
      .readonlyProperty<"isExpanded", &Container::expanded>()
      .partial<"expandModule", &Container::expandModule>(
          "no click presentation: one animation, at the next turn; the content is told the size of "
          "the screen for its own")
      .partial<"dismissExpandedModuleAnimated:", &Container::dismissExpandedModule>(
          "one animation, and the setter is sent again also where nothing is expanded")
      .partial<"_didTapModule:", &Container::didTapModule>(
          "a tap does what a long press does, too, on the platform")
      .finish();
}

}  // namespace sim
