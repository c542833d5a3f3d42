// UIView: layout as it is asked for, and sizes that fit.
#include "objc/Message.h"
#include "simulator/uikit/UIWindow.h"
#include "simulator/uikit/ViewLayout.h"
#include "simulator/uikit/ViewMethods.h"
#include "simulator/uikit/ViewTree.h"

namespace sim {
namespace {

using objc::Object;

constexpr double noIntrinsicMetric = -1;

void setNeedsLayout(Object self) {
  UIView::of(self).needsLayout = true;
  if (windowOf(self)) queueLayoutPass();
}

void layoutSubviews(Object) {}

CGSize sizeThatFits(Object self, CGSize) {
  return UIView::of(self).geometry().bounds.size;
}
void sizeToFit(Object self) {
  const LayerGeometry& geometry = UIView::of(self).geometry();
  const CGPoint origin = geometry.frame().origin;
  const CGSize size = objc::send<CGSize, "sizeThatFits:">(self, geometry.bounds.size);
  objc::send<void, "setFrame:">(self, CGRect{origin, size});
}
CGSize intrinsicContentSize(Object) {
  return {noIntrinsicMetric, noIntrinsicMetric};
}
// The superview is the one that places the view.
void invalidateIntrinsicContentSize(Object self) {
  if (UIView::of(self).parent) objc::send<void, "setNeedsLayout">(UIView::of(self).parent);
}

}  // namespace

void addViewLayout(StandIn<UIView>& view) {
  view.method<"setNeedsLayout", &setNeedsLayout>()
      .method<"layoutIfNeeded", &layoutIfNeeded>()
      .partial<"layoutSubviews", &layoutSubviews>("no constraints")
      .method<"sizeThatFits:", &sizeThatFits>()
      .method<"sizeToFit", &sizeToFit>()
      .method<"intrinsicContentSize", &intrinsicContentSize>()
      .method<"invalidateIntrinsicContentSize", &invalidateIntrinsicContentSize>();
}

}  // namespace sim
