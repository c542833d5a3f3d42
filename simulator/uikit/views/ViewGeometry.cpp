// UIView: where it stands.
#include "objc/Message.h"
#include "simulator/foundation/Kind.h"
#include "simulator/quartzcore/CALayer.h"
#include "simulator/uikit/autolayout/LayoutEngine.h"
#include "simulator/uikit/views/ViewMethods.h"
#include "simulator/uikit/views/ViewTree.h"

namespace sim {
namespace {

using objc::Object;

LayerGeometry& geometry(Object self) {
  return UIView::of(self).geometry();
}

// Changes what a layer can animate.
template <class Change>
void change(Object self, Change make) {
  LayerGeometry& its = geometry(self);
  const LayerGeometry before = its;
  {
    const LayerChange recorded(stateOf<CALayer>(UIView::layerOf(self)));
    make(its);
  }
  if (its.bounds != before.bounds || its.position != before.position) geometryChanged(self);
}

CGRect frame(Object self) {
  return geometry(self).frame();
}
void setFrame(Object self, CGRect frame) {
  const CGSize before = geometry(self).bounds.size;
  change(self, [frame](LayerGeometry& its) { its.setFrame(frame); });
  sizeChanged(self, before);
}
CGRect bounds(Object self) {
  return geometry(self).bounds;
}
void setBounds(Object self, CGRect bounds) {
  const CGSize before = geometry(self).bounds.size;
  change(self, [bounds](LayerGeometry& its) { its.bounds = bounds; });
  sizeChanged(self, before);
}
CGPoint center(Object self) {
  return geometry(self).position;
}
void setCenter(Object self, CGPoint center) {
  change(self, [center](LayerGeometry& its) { its.position = center; });
}
CGAffineTransform transform(Object self) {
  return geometry(self).transform.affine();
}
void setTransform(Object self, CGAffineTransform transform) {
  change(self,
         [transform](LayerGeometry& its) { its.transform = CATransform3D::ofAffine(transform); });
}

// nil stands for the window, or for the root of a tree that has none.
CGPoint convertToView(Object self, CGPoint point, Object view) {
  const CGPoint atRoot = toRoot(self, point);
  return view ? fromRoot(view, atRoot) : atRoot;
}
CGPoint convertFromView(Object self, CGPoint point, Object view) {
  return fromRoot(self, view ? toRoot(view, point) : point);
}

// The box around the converted corners.
template <auto convert>
CGRect convertRect(Object self, CGRect rect, Object view) {
  const CGPoint origin = convert(self, rect.origin, view);
  const CGPoint right = convert(self, {rect.origin.x + rect.size.width, rect.origin.y}, view);
  const CGPoint down = convert(self, {rect.origin.x, rect.origin.y + rect.size.height}, view);
  const CGAffineTransform axes = {right.x - origin.x, right.y - origin.y, down.x - origin.x,
                                  down.y - origin.y,  origin.x,           origin.y};
  return axes.apply(CGRect{{}, {1, 1}});
}

}  // namespace

void addViewGeometry(StandIn<UIView>& view) {
  view.method<"frame", &frame>()
      .method<"setFrame:", &setFrame>()
      .method<"bounds", &bounds>()
      .method<"setBounds:", &setBounds>()
      .method<"center", &center>()
      .method<"setCenter:", &setCenter>()
      .method<"transform", &transform>()
      .method<"setTransform:", &setTransform>()
      .property<"autoresizingMask", &UIView::autoresizingMask>()
      .property<"autoresizesSubviews", &UIView::autoresizesSubviews>()
      .partial<"convertPoint:toView:", &convertToView>("windows all begin at the screen's origin")
      .partial<"convertPoint:fromView:", &convertFromView>(
          "windows all begin at the screen's origin")
      .partial<"convertRect:toView:", &convertRect<&convertToView>>(
          "windows all begin at the screen's origin")
      .partial<"convertRect:fromView:", &convertRect<&convertFromView>>(
          "windows all begin at the screen's origin");
}

}  // namespace sim
