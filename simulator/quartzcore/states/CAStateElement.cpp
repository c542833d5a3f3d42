#include "simulator/quartzcore/states/CAStateElement.h"

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/quartzcore/CALayer.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;
using objc::retain;

std::vector<StateUndo> setValue(Object target, const CAStateSetValue& change) {
  const Object before = objc::send<Object, "valueForKeyPath:">(target, change.keyPath.get());
  objc::send<void, "setValue:forKeyPath:">(target, change.value.get(), change.keyPath.get());
  return {{retain(target), change.keyPath, retain(before)}};
}

// A layer cannot lie inside itself.
bool liesWithin(Object layer, Object outer) {
  for (; layer; layer = CALayer::of(layer).superlayer)
    if (layer == outer) return true;
  return false;
}

std::vector<StateUndo> changeSublayers(Object target, Object keyPath, Object layer, bool add) {
  if (text(keyPath) != "sublayers" || !isA<CALayer>(layer)) return {};
  if (add ? liesWithin(target, layer) : CALayer::of(layer).superlayer != target) return {};
  const Object before = objc::send<Object, "sublayers">(target);
  if (add)
    objc::send<void, "addSublayer:">(target, layer);
  else
    objc::send<void, "removeFromSuperlayer">(layer);
  return {{retain(target), retain(keyPath), retain(before)}};
}

}  // namespace

std::vector<StateUndo> applyStateElement(Object element) {
  const CAStateElement* common = stateOf<CAStateElement>(element);
  if (common == nullptr) return {};
  const auto target = common->target.load();
  if (!isA<CALayer>(target.get())) return {};
  if (const auto* change = stateOf<CAStateSetValue>(element)) return setValue(target, *change);
  if (const auto* change = stateOf<CAStateAddElement>(element))
    return changeSublayers(target, change->keyPath, change->object, true);
  if (const auto* change = stateOf<CAStateRemoveElement>(element))
    return changeSublayers(target, change->keyPath, change->object, false);
  return {};
}

void undo(const StateUndo& change) {
  objc::send<void, "setValue:forKeyPath:">(change.target.get(), change.before.get(),
                                           change.keyPath.get());
}

void CAStateElement::registerClass() {
  StandIn<CAStateElement>("QuartzCore", "CAStateElement", "NSObject")
      .property<"target", &CAStateElement::target>()
      .finish();
}

void CAStateSetValue::registerClass() {
  StandIn<CAStateSetValue>("QuartzCore", "CAStateSetValue", "CAStateElement")
      .property<"keyPath", &CAStateSetValue::keyPath>()
      .property<"value", &CAStateSetValue::value>()
      .finish();
}

void CAStateAddElement::registerClass() {
  StandIn<CAStateAddElement>("QuartzCore", "CAStateAddElement", "CAStateElement")
      .property<"keyPath", &CAStateAddElement::keyPath>()
      .property<"object", &CAStateAddElement::object>()
      .finish();
}

void CAStateRemoveElement::registerClass() {
  StandIn<CAStateRemoveElement>("QuartzCore", "CAStateRemoveElement", "CAStateElement")
      .property<"keyPath", &CAStateRemoveElement::keyPath>()
      .property<"object", &CAStateRemoveElement::object>()
      .finish();
}

void CAStateAddAnimation::registerClass() {
  StandIn<CAStateAddAnimation>("QuartzCore", "CAStateAddAnimation", "CAStateElement")
      .property<"key", &CAStateAddAnimation::key>()
      .property<"animation", &CAStateAddAnimation::animation>()
      .finish();
}

void CAStateRemoveAnimation::registerClass() {
  StandIn<CAStateRemoveAnimation>("QuartzCore", "CAStateRemoveAnimation", "CAStateElement")
      .property<"key", &CAStateRemoveAnimation::key>()
      .finish();
}

}  // namespace sim
