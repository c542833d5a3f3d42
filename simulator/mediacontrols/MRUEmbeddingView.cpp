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

bool MRUEmbeddingView::isShowing() const {
  const Object view = viewOf(embeddedViewController);
  return view && objc::send<Object, "superview">(view).get() == self();
}

void MRUEmbeddingView::setEmbeddedViewController(Object controller) {
  if (embeddedViewController.get() == controller) return;
  removeViewController();
  embeddedViewController = objc::retain(controller);
}

void MRUEmbeddingView::removeViewController() {
  if (!isShowing()) return;
  const auto controller = embeddedViewController;
  removeChildController(controller);
}

void MRUEmbeddingView::showViewController() {
  const Object controller = embeddedViewController;
  const Object owner = objc::send<Object, "_viewControllerForAncestor">(self());
  if (!controller) return;
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
  if (isShowing()) setFrame(viewOf(embeddedViewController), {{0, 0}, sizeOf(Object(self()))});
}

void MRUEmbeddingView::registerClass() {
  StandIn<MRUEmbeddingView>("MediaControls", "MRUEmbeddingView", "UIView")
      .readonlyProperty<"embeddedViewController", &MRUEmbeddingView::embeddedViewController>()
      .method<"setEmbeddedViewController:", &MRUEmbeddingView::setEmbeddedViewController>()
      .method<"removeViewController", &MRUEmbeddingView::removeViewController>()
      .partial<"showViewController", &MRUEmbeddingView::showViewController>(
          "shows at any time, by the responder chain, where a phone has a parent, is active or "
          "not, "
          "and can hide")
      .method<"sizeThatFits:", &MRUEmbeddingView::sizeThatFits>()
      .method<"layoutSubviews", &MRUEmbeddingView::layoutSubviews>()
      .finish();
}

}  // namespace sim
