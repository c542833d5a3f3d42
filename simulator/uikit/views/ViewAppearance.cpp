// UIView: what it looks like.
#include "objc/Message.h"
#include "simulator/foundation/Kind.h"
#include "simulator/quartzcore/CALayer.h"
#include "simulator/uikit/autolayout/LayoutEngine.h"
#include "simulator/uikit/resources/UIColor.h"
#include "simulator/uikit/views/UIStackView.h"
#include "simulator/uikit/views/ViewMethods.h"

namespace sim {
namespace {

using objc::Object;

CALayer* layerOf(Object self) {
  return stateOf<CALayer>(UIView::layerOf(self));
}

void setAlpha(Object self, double alpha) {
  const LayerChange change(layerOf(self));
  if (CALayer* layer = layerOf(self)) layer->opacity = alpha < 0 ? 0 : alpha > 1 ? 1 : alpha;
}
double alphaOf(Object self) {
  return UIView::of(self).alpha();
}
bool hidden(Object self) {
  return UIView::of(self).isHidden();
}
void setHidden(Object self, bool hidden) {
  CALayer* layer = layerOf(self);
  if (layer == nullptr || layer->hidden == hidden) return;
  layer->hidden = hidden;
  // A stack closes the gap.
  if (isA<UIStackView>(UIView::of(self).parent)) constraintsChanged(self);
}

void setBackgroundColor(Object self, Object color) {
  const LayerChange change(layerOf(self));
  UIView::of(self).backgroundColor = objc::retain(color);
  if (CALayer* layer = layerOf(self))
    layer->backgroundColor = objc::retain(objc::send<Object, "CGColor">(color));
}

bool clipsToBounds(Object self) {
  const CALayer* layer = layerOf(self);
  return layer != nullptr && layer->masksToBounds;
}
void setClipsToBounds(Object self, bool clips) {
  if (CALayer* layer = layerOf(self)) layer->masksToBounds = clips;
}

// Inherited from the superviews; the system's blue at the top.
Object tintColor(Object self) {
  for (Object view = self; view; view = UIView::of(view).parent)
    if (UIView::of(view).tintColor) return UIView::of(view).tintColor;
  return UIColor::systemBlue();
}

void propagateTintChange(Object view) {
  objc::send<void, "tintColorDidChange">(view);
  const auto children = UIView::of(view).children;
  for (const auto& child : children)
    if (!UIView::of(child.get()).tintColor) propagateTintChange(child.get());
}
void setTintColor(Object self, Object color) {
  UIView::of(self).tintColor = objc::retain(color);
  propagateTintChange(self);
}
void tintColorDidChange(Object) {}

// What is inside may run the other way now.
void setSemanticContentAttribute(Object self, long attribute) {
  if (UIView::of(self).semanticContentAttribute == attribute) return;
  UIView::of(self).semanticContentAttribute = attribute;
  constraintsChanged(self);
}

}  // namespace

bool UIView::isHidden() const {
  const CALayer* its = stateOf<CALayer>(layer.get());
  return its != nullptr && its->hidden;
}

double UIView::alpha() const {
  const CALayer* its = stateOf<CALayer>(layer.get());
  return its != nullptr ? its->opacity : 1;
}

void addViewAppearance(StandIn<UIView>& view) {
  view.partial<"alpha", &alphaOf>("keeps the precision that a layer's float would lose")
      .method<"setAlpha:", &setAlpha>()
      .method<"isHidden", &hidden>()
      .method<"setHidden:", &setHidden>()
      .readonlyProperty<"backgroundColor", &UIView::backgroundColor>()
      .method<"setBackgroundColor:", &setBackgroundColor>()
      .method<"clipsToBounds", &clipsToBounds>()
      .method<"setClipsToBounds:", &setClipsToBounds>()
      .method<"tintColor", &tintColor>()
      .method<"setTintColor:", &setTintColor>()
      .method<"tintColorDidChange", &tintColorDidChange>()
      .property<"contentMode", &UIView::contentMode>()
      .readonlyProperty<"semanticContentAttribute", &UIView::semanticContentAttribute>()
      .method<"setSemanticContentAttribute:", &setSemanticContentAttribute>();
}

}  // namespace sim
