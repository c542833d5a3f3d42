#include "simulator/quartzcore/CALayer.h"

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSArray.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/quartzcore/LayerKeyPath.h"
#include "simulator/quartzcore/states/CAState.h"
#include "simulator/standin/StandIn.h"

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
  {
    const LayerChange change(&CALayer::of(self));
    geometry(self).bounds = bounds;
  }
  sizeMayHaveChanged(self, before);
}
CGRect frame(Object self) {
  return geometry(self).frame();
}
void setFrame(Object self, CGRect frame) {
  const CGSize before = geometry(self).bounds.size;
  {
    const LayerChange change(&CALayer::of(self));
    geometry(self).setFrame(frame);
  }
  sizeMayHaveChanged(self, before);
}
CGPoint position(Object self) {
  return geometry(self).position;
}
void setPosition(Object self, CGPoint position) {
  const LayerChange change(&CALayer::of(self));
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
  const LayerChange change(&CALayer::of(self));
  geometry(self).transform = transform;
}
CGAffineTransform affineTransform(Object self) {
  return geometry(self).transform.affine();
}
void setAffineTransform(Object self, CGAffineTransform transform) {
  const LayerChange change(&CALayer::of(self));
  geometry(self).transform = CATransform3D::ofAffine(transform);
}

float layerOpacity(Object self) {
  return float(CALayer::of(self).opacity);
}
void setLayerOpacity(Object self, float opacity) {
  const LayerChange change(&CALayer::of(self));
  CALayer::of(self).opacity = double(opacity);
}

void setBackgroundColor(Object self, Object color) {
  const LayerChange change(&CALayer::of(self));
  CALayer::of(self).backgroundColor = objc::retain(color);
}
void setCornerRadius(Object self, double radius) {
  const LayerChange change(&CALayer::of(self));
  CALayer::of(self).cornerRadius = radius;
}

void setBackdropBlur(Object self, double radius) {
  const LayerChange change(&CALayer::of(self));
  CALayer::of(self).backdropBlur = radius;
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

// A copy that stands where the layer is seen, without the layers below it.
Object presentationLayer(Object self) {
  const CALayer& model = CALayer::of(self);
  const LayerValues seen = model.presentation(Phone::current().clock.uptime());
  auto made = CALayer::make();
  CALayer& copy = CALayer::of(made.get());
  copy.geometry.bounds = seen.bounds;
  copy.geometry.position = seen.position;
  copy.geometry.anchorPoint = model.geometry.anchorPoint;
  copy.geometry.transform = CATransform3D::ofAffine(seen.transform);
  copy.opacity = seen.opacity;
  copy.cornerRadius = seen.cornerRadius;
  copy.hidden = model.hidden;
  copy.masksToBounds = model.masksToBounds;
  copy.backgroundColor = model.backgroundColor;
  copy.contents = model.contents;
  copy.name = model.name;
  return autorelease(std::move(made));
}

struct LayerCount {
  unsigned long made = 0;
};

// The whole of what was there goes first.
void setSublayers(Object self, Object layers) {
  const auto before = CALayer::of(self).children;
  for (const auto& child : before) CALayer::of(child.get()).removeFromSuperlayer();
  const NSArray* list = stateOf<NSArray>(layers);
  if (list == nullptr) return;
  const auto kept = list->elements;
  for (const auto& each : kept) addSublayer(self, each.get());
}

Object valueForUndefinedKey(Object self, Object key) {
  const auto& values = CALayer::of(self).otherValues;
  const auto found = values.find(text(key));
  return found != values.end() ? found->second.get() : Object();
}
void setValueForUndefinedKey(Object self, Object value, Object key) {
  CALayer::of(self).otherValues[text(key)] = objc::retain(value);
}
Object valueForKeyPath(Object self, Object path) {
  if (const auto member = layerMember(self, text(path))) return number(*member);
  return objc::sendSuper<Object, "valueForKeyPath:">(self.get(), CALayer::cls(), path);
}
void setValueForKeyPath(Object self, Object value, Object path) {
  if (isLayerKeyPath(text(path))) {
    setLayerMember(self, text(path), objc::send<double, "doubleValue">(value));
    return;
  }
  objc::sendSuper<void, "setValue:forKeyPath:">(self.get(), CALayer::cls(), value, path);
}

}  // namespace

CALayer::CALayer() : identity(++Phone::current().state<LayerCount>().made) {}

CALayer::~CALayer() {
  if (transition.timing.group) transition.timing.group->forget(*this);
  for (const LayerAnimation& each : animations) each.timing.group->forget(*this);
  for (const auto& child : children) of(child.get()).superlayer = nullptr;
  if (mask) of(mask.get()).masked = nullptr;
}

Object CALayer::stateWithName(Object wanted) const {
  const NSArray* list = stateOf<NSArray>(states);
  if (list == nullptr) return nullptr;
  for (const auto& state : list->elements)
    if (text(CAState::of(state.get()).name) == text(wanted)) return state;
  return nullptr;
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
      .flag<"hidden", "isHidden", &CALayer::hidden>()
      .readonlyProperty<"cornerRadius", &CALayer::cornerRadius>()
      .method<"setCornerRadius:", &setCornerRadius>()
      .partial<"_setBackdropBlur:", &setBackdropBlur>("the simulator's own")
      .property<"borderWidth", &CALayer::borderWidth>()
      .property<"borderColor", &CALayer::borderColor>()
      .property<"masksToBounds", &CALayer::masksToBounds>()
      .flag<"geometryFlipped", "isGeometryFlipped", &CALayer::geometryFlipped>()
      .readonlyProperty<"mask", &CALayer::mask>()
      .method<"setMask:", &CALayer::setMask>()
      .readonlyProperty<"backgroundColor", &CALayer::backgroundColor>()
      .method<"setBackgroundColor:", &setBackgroundColor>()
      .property<"contents", &CALayer::contents>()
      .property<"name", &CALayer::name>()
      .property<"delegate", &CALayer::delegate>()
      .readonlyProperty<"superlayer", &CALayer::superlayer>()
      .method<"sublayers", &sublayers>()
      .method<"addSublayer:", &addSublayer>()
      .method<"insertSublayer:atIndex:", &CALayer::insertSublayer>()
      .method<"removeFromSuperlayer", &CALayer::removeFromSuperlayer>()
      .partial<"presentationLayer", &presentationLayer>("has no sublayers; colours as they end")
      .method<"removeAllAnimations", &CALayer::removeAllAnimations>()
      .method<"setSublayers:", &setSublayers>()
      .property<"states", &CALayer::states>()
      .property<"stateTransitions", &CALayer::stateTransitions>()
      .method<"stateWithName:", &CALayer::stateWithName>()
      .method<"valueForUndefinedKey:", &valueForUndefinedKey>()
      .method<"setValue:forUndefinedKey:", &setValueForUndefinedKey>()
      .method<"valueForKeyPath:", &valueForKeyPath>()
      .partial<"setValue:forKeyPath:", &setValueForKeyPath>("of structures, what is in the plane")
      .finish();
}

}  // namespace sim
