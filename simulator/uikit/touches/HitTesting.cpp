// UIView: which view a touch is for.
#include "objc/Message.h"
#include "simulator/uikit/touches/Touch.h"
#include "simulator/uikit/views/ViewMethods.h"

namespace sim {
namespace {

using objc::Object;

bool pointInside(Object self, CGPoint point, Object) {
  return UIView::of(self).geometry().bounds.contains(point);
}

// The frontmost view first, and within it its own subviews.
Object hitTest(Object self, CGPoint point, Object event) {
  if (whyUntouchable(UIView::of(self)) != nullptr) return nullptr;
  if (!objc::send<bool, "pointInside:withEvent:">(self, point, event)) return nullptr;
  const auto children = UIView::of(self).children;
  for (auto child = children.rbegin(); child != children.rend(); ++child) {
    const CGPoint inside = UIView::of(child->get()).geometry().fromSuperlayer(point);
    if (const Object hit = objc::send<Object, "hitTest:withEvent:">(child->get(), inside, event))
      return hit;
  }
  return self;
}

}  // namespace

void addHitTesting(StandIn<UIView>& view) {
  view.method<"pointInside:withEvent:", &pointInside>()
      .method<"hitTest:withEvent:", &hitTest>()
      .flag<"userInteractionEnabled", "isUserInteractionEnabled",
            &UIView::userInteractionEnabled>();
}

}  // namespace sim
