// What a layer's animations make of its values.
#include <algorithm>
#include <array>
#include <utility>

#include "simulator/coregraphics/CGColor.h"
#include "simulator/foundation/Kind.h"
#include "simulator/machine/Phone.h"
#include "simulator/quartzcore/CALayer.h"

namespace sim {

using objc::Object;

namespace {

std::array<double, 4> componentsOf(Object color) {
  const CGColor* state = stateOf<CGColor>(color);
  return state != nullptr ? state->color.values : std::array<double, 4>{};
}

}  // namespace

LayerValues CALayer::values() const {
  return {{geometry.bounds, geometry.position, opacity, componentsOf(backgroundColor), cornerRadius,
           backdropBlur},
          geometry.transform.affine()};
}

LayerValues CALayer::presentation(Nanoseconds now) const {
  LayerValues seen = values();
  // The newest is the nearest to the layer: what an older one still turns, it turns as a whole.
  for (auto each = animations.rbegin(); each != animations.rend(); ++each) each->addTo(seen, now);
  return seen;
}

void CALayer::removeAllAnimations() {
  const auto kept = objc::retain(Object(self()));  // who hears of it may let the layer go
  const Nanoseconds now = Phone::current().clock.uptime();
  std::vector<AnimationTiming> all = {std::exchange(transition, {}).timing};
  for (const LayerAnimation& each : std::exchange(animations, {})) all.push_back(each.timing);
  for (const AnimationTiming& each : all)
    if (each.group && each.end() > now) each.group->interrupt(*this);
}

void CALayer::dropAnimations(const AnimationGroup& its) {
  std::erase_if(animations, [&](const auto& each) { return each.timing.group.get() == &its; });
  if (transition.timing.group.get() == &its) transition = {};
}

bool CALayer::ignoresTouches(Nanoseconds now) const {
  const auto does = [now](const AnimationTiming& timing) {
    return timing.ignoresTouches && timing.end() > now;
  };
  return does(transition.timing) ||
         std::any_of(animations.begin(), animations.end(),
                     [does](const LayerAnimation& each) { return does(each.timing); });
}

}  // namespace sim
