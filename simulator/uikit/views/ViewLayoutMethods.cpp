// UIView: layout as it is asked for, and sizes that fit.
#include "objc/Message.h"
#include "simulator/uikit/application/UIWindow.h"
#include "simulator/uikit/autolayout/LayoutEngine.h"
#include "simulator/uikit/views/ViewLayout.h"
#include "simulator/uikit/views/ViewMethods.h"
#include "simulator/uikit/views/ViewTree.h"

namespace sim {
namespace {

using objc::Object;

constexpr double noIntrinsicMetric = -1;

void setNeedsLayout(Object self) {
  UIView::of(self).needsLayout = true;
  if (windowOf(self)) queueLayoutPass();
}

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
// Superviews may place their subviews by their sizes without constraints, too.
void invalidateIntrinsicContentSize(Object self) {
  contentSizeChanged(self);
  if (UIView::of(self).parent) objc::send<void, "_subviewDidChangeSize">(UIView::of(self).parent);
}
void subviewDidChangeSize(Object) {}

}  // namespace

void addViewLayout(StandIn<UIView>& view) {
  view.method<"setNeedsLayout", &setNeedsLayout>()
      .method<"layoutIfNeeded", &layoutIfNeeded>()
      .method<"layoutSubviews", &placeSubviews>()
      .method<"sizeThatFits:", &sizeThatFits>()
      .method<"sizeToFit", &sizeToFit>()
      .method<"intrinsicContentSize", &intrinsicContentSize>()
      .method<"invalidateIntrinsicContentSize", &invalidateIntrinsicContentSize>()
      .partial<"_subviewDidChangeSize", &subviewDidChangeSize>("the simulator's own, for buttons");
}

}  // namespace sim
