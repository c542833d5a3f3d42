// Where a layer lies among others.
#include <algorithm>
#include <utility>

#include "simulator/foundation/Exception.h"
#include "simulator/foundation/Kind.h"
#include "simulator/quartzcore/CALayer.h"

namespace sim {

using objc::Object;

namespace {

void requirePlaceBelow(Object above, const char* selector, Object layer) {
  if (!isA<CALayer>(layer)) raiseWrongClass(selector, layer, "CALayer");
  while (above && above != layer)
    above =
        CALayer::of(above).superlayer ? CALayer::of(above).superlayer : CALayer::of(above).masked;
  if (above)
    raiseException("CALayerInvalid", std::string("layer <") + object_getClassName(layer.get()) +
                                         "> is a part of cycle in its layer tree");
}

}  // namespace

void CALayer::setMask(Object layer) {
  if (layer) requirePlaceBelow(Object(self()), "setMask:", layer);
  if (mask) of(mask.get()).masked = nullptr;
  const auto kept = objc::retain(layer);  // another layer's mask until now, maybe
  if (layer && of(layer).masked) of(of(layer).masked).mask = nullptr;
  mask = kept;
  if (layer) of(layer).masked = Object(self());
}

void CALayer::insertSublayer(Object layer, unsigned index) {
  if (!layer) return;
  requirePlaceBelow(Object(self()), "addSublayer:", layer);
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

}  // namespace sim
