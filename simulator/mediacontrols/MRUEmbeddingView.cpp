#include "simulator/mediacontrols/MRUEmbeddingView.h"

#include <algorithm>

#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

Object viewOf(Object controller) {
  return objc::send<Object, "viewIfLoaded">(controller);
}

}  // namespace

bool MRUEmbeddingView::holdsItsView() const {
  const Object view = viewOf(embeddedViewController);
  return view && objc::send<Object, "superview">(view).get() == self();
}

void MRUEmbeddingView::embedViewController(Object controller, Object itsParent) {
  objc::send<void, "setEmbeddedViewController:">(self(), controller);
  objc::send<void, "setParent:">(self(), itsParent);
}

void MRUEmbeddingView::setEmbeddedViewController(Object controller) {
  if (embeddedViewController.get() == controller) return;
  removeViewController();
  embeddedViewController = objc::retain(controller);
}

void MRUEmbeddingView::removeViewController() {
  active = false;
  if (!holdsItsView()) return;
  const auto controller = embeddedViewController;
  removeChildController(controller);
}

void MRUEmbeddingView::showViewController() {
  const Object controller = embeddedViewController;
  if (!controller) return;
  const auto given = parent.load();
  const Object owner =
      given ? given.get() : objc::send<Object, "_viewControllerForAncestor">(self());
  active = true;
  objc::send<void, "addChildViewController:">(owner, controller);
  const Object view = objc::send<Object, "view">(controller);
  setFrame(view, {{0, 0}, sizeOf(Object(self()))});
  objc::send<void, "addSubview:">(self(), view);
  objc::send<void, "didMoveToParentViewController:">(controller, owner);
  objc::send<void, "setNeedsLayout">(view);
  objc::send<void, "layoutIfNeeded">(view);
}

CGSize MRUEmbeddingView::sizeThatFits(CGSize room) const {
  const auto preferred = objc::send<CGSize, "preferredContentSize">(embeddedViewController.get());
  return {room.width, std::min(preferred.height, room.height)};
}

void MRUEmbeddingView::layoutSubviews() {
  super<void, "layoutSubviews">();
  if (holdsItsView()) setFrame(viewOf(embeddedViewController), {{0, 0}, sizeOf(Object(self()))});
}

void MRUEmbeddingView::registerClass() {
  constexpr const char* bodiesUnknown = "what a phone's does is not known beyond its name";
  StandIn<MRUEmbeddingView>("MediaControls", "MRUEmbeddingView", "UIView")
      .readonlyProperty<"embeddedViewController", &MRUEmbeddingView::embeddedViewController>()
      .method<"setEmbeddedViewController:", &MRUEmbeddingView::setEmbeddedViewController>()
      .method<"parent", &MRUEmbeddingView::itsParent>()
      .method<"setParent:", &MRUEmbeddingView::setParent>()
      .readonlyProperty<"isActive", &MRUEmbeddingView::active>()
      .partial<"embedViewController:parent:", &MRUEmbeddingView::embedViewController>(bodiesUnknown)
      .partial<"removeViewController", &MRUEmbeddingView::removeViewController>(bodiesUnknown)
      .partial<"hideViewController", &MRUEmbeddingView::hideViewController>(bodiesUnknown)
      .partial<"showViewController", &MRUEmbeddingView::showViewController>(
          "what a phone's does is not known; this one shows also again, and without a parent")
      .method<"sizeThatFits:", &MRUEmbeddingView::sizeThatFits>()
      .method<"layoutSubviews", &MRUEmbeddingView::layoutSubviews>()
      .finish();
}

}  // namespace sim
