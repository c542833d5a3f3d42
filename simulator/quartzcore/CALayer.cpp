#include "simulator/quartzcore/CALayer.h"

#include <algorithm>

#include "simulator/StandIn.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"

namespace sim {
namespace {

using objc::Object;

Object layer(id cls) {
  return autorelease(makeOf(cls));
}

LayerGeometry& geometry(Object self) {
  return CALayer::of(self).geometry;
}

// What a view lays out depends on its layer's size.
void sizeMayHaveChanged(Object self, CGSize before) {
  const Object delegate = CALayer::of(self).delegate;
  if (geometry(self).bounds.size != before && objc::respondsTo<"setNeedsLayout">(delegate))
    objc::send<void, "setNeedsLayout">(delegate);
}

CGRect bounds(Object self) {
  return geometry(self).bounds;
}
void setBounds(Object self, CGRect bounds) {
  const CGSize before = geometry(self).bounds.size;
  geometry(self).bounds = bounds;
  sizeMayHaveChanged(self, before);
}
CGRect frame(Object self) {
  return geometry(self).frame();
}
void setFrame(Object self, CGRect frame) {
  const CGSize before = geometry(self).bounds.size;
  geometry(self).setFrame(frame);
  sizeMayHaveChanged(self, before);
}
CGPoint position(Object self) {
  return geometry(self).position;
}
void setPosition(Object self, CGPoint position) {
  geometry(self).position = position;
}
CGPoint anchorPoint(Object self) {
  return geometry(self).anchorPoint;
}
void setAnchorPoint(Object self, CGPoint anchor) {
  geometry(self).anchorPoint = anchor;
}
CATransform3D transform(Object self) {
  return geometry(self).transform;
}
void setTransform(Object self, CATransform3D transform) {
  geometry(self).transform = transform;
}
CGAffineTransform affineTransform(Object self) {
  return geometry(self).transform.affine();
}
void setAffineTransform(Object self, CGAffineTransform transform) {
  geometry(self).transform = CATransform3D::ofAffine(transform);
}

float layerOpacity(Object self) {
  return float(CALayer::of(self).opacity);
}
void setLayerOpacity(Object self, float opacity) {
  CALayer::of(self).opacity = double(opacity);
}

Object sublayers(Object self) {
  const auto& children = CALayer::of(self).children;
  if (children.empty()) return nullptr;
  return array(std::vector<Object>(children.begin(), children.end()));
}
void addSublayer(Object self, Object layer) {
  CALayer& state = CALayer::of(self);
  state.insertSublayer(layer, unsigned(state.children.size()));
}

}  // namespace

CALayer::~CALayer() {
  for (const auto& child : children) of(child.get()).superlayer = nullptr;
}

void CALayer::insertSublayer(Object layer, unsigned index) {
  if (!layer || layer.get() == self()) return;
  const auto kept = objc::retain(layer);  // the superlayer it has may own it alone
  of(layer).removeFromSuperlayer();
  children.insert(children.begin() + std::min<long>(index, long(children.size())), kept);
  of(layer).superlayer = Object(self());
}

void CALayer::removeFromSuperlayer() {
  if (!superlayer) return;
  auto& siblings = of(std::exchange(superlayer, nullptr)).children;
  const auto isThis = [this](const auto& each) { return each.get().get() == self(); };
  const auto found = std::find_if(siblings.begin(), siblings.end(), isThis);
  const auto last = std::move(*found);  // this layer may end with the function
  siblings.erase(found);
}

void CALayer::registerClass() {
  StandIn<CALayer>("QuartzCore", "CALayer", "NSObject")
      .factory<"layer", &layer>()
      .method<"bounds", &bounds>()
      .method<"setBounds:", &setBounds>()
      .method<"frame", &frame>()
      .method<"setFrame:", &setFrame>()
      .method<"position", &position>()
      .method<"setPosition:", &setPosition>()
      .method<"anchorPoint", &anchorPoint>()
      .method<"setAnchorPoint:", &setAnchorPoint>()
      .method<"transform", &transform>()
      .partial<"setTransform:", &setTransform>("only what stays in the plane counts")
      .method<"affineTransform", &affineTransform>()
      .method<"setAffineTransform:", &setAffineTransform>()
      .method<"opacity", &layerOpacity>()
      .method<"setOpacity:", &setLayerOpacity>()
      .property<"hidden", &CALayer::hidden>()
      .readonlyProperty<"isHidden", &CALayer::hidden>()
      .property<"cornerRadius", &CALayer::cornerRadius>()
      .property<"masksToBounds", &CALayer::masksToBounds>()
      .property<"geometryFlipped", &CALayer::geometryFlipped>()
      .readonlyProperty<"isGeometryFlipped", &CALayer::geometryFlipped>()
      .property<"mask", &CALayer::mask>()
      .property<"backgroundColor", &CALayer::backgroundColor>()
      .property<"contents", &CALayer::contents>()
      .property<"name", &CALayer::name>()
      .property<"delegate", &CALayer::delegate>()
      .readonlyProperty<"superlayer", &CALayer::superlayer>()
      .method<"sublayers", &sublayers>()
      .method<"addSublayer:", &addSublayer>()
      .method<"insertSublayer:atIndex:", &CALayer::insertSublayer>()
      .method<"removeFromSuperlayer", &CALayer::removeFromSuperlayer>()
      .finish();
}

}  // namespace sim
