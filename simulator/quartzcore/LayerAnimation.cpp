#include "simulator/quartzcore/LayerAnimation.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <numbers>

#include "simulator/machine/Phone.h"
#include "simulator/quartzcore/CALayer.h"
#include "simulator/quartzcore/PlaneTransform.h"

namespace sim {
namespace {

struct Current {
  std::optional<AnimationTiming> timing;
};

LayerAnimation& animationOf(CALayer& layer, const AnimationTiming& timing) {
  auto& all = layer.animations;
  if (all.empty() || all.back().timing.group != timing.group) all.push_back({.timing = timing});
  timing.group->add(layer);
  return all.back();
}

void removeEnded(CALayer& layer, Nanoseconds now) {
  std::erase_if(layer.animations, [&layer, now](const LayerAnimation& each) {
    if (each.timing.end() > now) return false;
    each.timing.group->forget(layer);
    return true;
  });
}

LayerNumbers numbersOf(const LayerMeasures& measures) {
  return std::bit_cast<LayerNumbers>(measures);
}

// From a transform that leaves nothing of the layer there is no way back: it is seen at once, as on
// the platform.
CGAffineTransform wayBackFrom(const CGAffineTransform& end, const CGAffineTransform& start) {
  return end.canBeInverted() ? end.inverse().then(start) : CGAffineTransform();
}

CGAffineTransform partOf(const CGAffineTransform& wayBack, double part) {
  // Rounding leaves half a turn on either side. The way back is against the clock.
  constexpr double almostHalfATurn = std::numbers::pi - 1e-6;
  PlaneTransform change(wayBack);
  if (change.turn > almostHalfATurn) change.turn -= 2 * std::numbers::pi;
  change.scale = {1 + (change.scale.x - 1) * part, 1 + (change.scale.y - 1) * part};
  change.shear *= part;
  change.turn *= part;
  change.move = {change.move.x * part, change.move.y * part};
  return change.whole();
}

}  // namespace

const std::optional<AnimationTiming>& currentAnimation() {
  return Phone::current().state<Current>().timing;
}
void setCurrentAnimation(const std::optional<AnimationTiming>& timing) {
  Phone::current().state<Current>().timing = timing;
}

double AnimationTiming::progress(Nanoseconds now) const {
  if (duration <= 0) return 1;
  const double ways = std::max(seconds(now - begin) / duration, 0.0);
  const double last = repeats ? std::numeric_limits<double>::infinity() : autoreverses ? 2 : 1;
  if (ways >= last) return 1;
  const double part = ways - std::floor(ways);
  const bool isOnItsWayBack = autoreverses && std::fmod(std::floor(ways), 2) == 1;
  return curve.at(isOnItsWayBack ? 1 - part : part, duration);
}

Nanoseconds AnimationTiming::end() const {
  if (repeats) return std::numeric_limits<Nanoseconds>::max();
  return deadline(begin, nanoseconds(duration * (autoreverses ? 2 : 1)));
}

void LayerAnimation::addTo(LayerValues& seen, Nanoseconds now) const {
  const double toCome = 1 - timing.progress(now);
  LayerNumbers numbers = numbersOf(seen);
  for (std::size_t i = 0; i < numbers.size(); ++i) numbers[i] += difference[i] * toCome;
  static_cast<LayerMeasures&>(seen) = std::bit_cast<LayerMeasures>(numbers);
  if (wayBack != CGAffineTransform()) seen.transform = seen.transform.then(partOf(wayBack, toCome));
}

void animateFrom(CALayer& layer, const LayerValues& start, const AnimationTiming& timing) {
  const LayerValues end = layer.values();
  const LayerNumbers first = numbersOf(start);
  const LayerNumbers last = numbersOf(end);
  LayerAnimation& animation = animationOf(layer, timing);
  for (std::size_t i = 0; i < last.size(); ++i) animation.difference[i] += first[i] - last[i];
  animation.wayBack = wayBackFrom(end.transform, start.transform).then(animation.wayBack);
}

LayerChange::LayerChange(CALayer* layer) : layer_(currentAnimation() ? layer : nullptr) {
  if (layer_ == nullptr) return;
  const Nanoseconds now = Phone::current().clock.uptime();
  removeEnded(*layer_, now);
  before_ = layer_->values();
  seen_ = currentAnimation()->fromCurrentState ? layer_->presentation(now) : before_;
}

LayerChange::~LayerChange() {
  if (layer_ == nullptr) return;
  const LayerValues after = layer_->values();
  if (before_ == after) return;
  LayerAnimation& animation = animationOf(*layer_, *currentAnimation());
  animateNumbers(animation, after);
  animateTransform(animation, after.transform);
  if (currentAnimation()->fromCurrentState) interruptReplaced();
}

void LayerChange::animateNumbers(LayerAnimation& animation, const LayerMeasures& now) const {
  const LayerNumbers before = numbersOf(before_);
  const LayerNumbers seen = numbersOf(seen_);
  const LayerNumbers after = numbersOf(now);
  for (std::size_t i = 0; i < after.size(); ++i) {
    if (before[i] == after[i]) continue;
    if (currentAnimation()->fromCurrentState)
      for (LayerAnimation& each : layer_->animations) each.difference[i] = 0;
    animation.difference[i] += seen[i] - after[i];
  }
}

// What begins from the current state takes the place of what ran until now.
void LayerChange::interruptReplaced() const {
  const auto isReplaced = [](const LayerAnimation& each) {
    return each.changesNothing() && each.timing.group != currentAnimation()->group;
  };
  const auto all = layer_->animations;
  std::erase_if(layer_->animations, isReplaced);
  for (const LayerAnimation& each : all)
    if (isReplaced(each)) each.timing.group->interrupt(*layer_);
}

void LayerChange::animateTransform(LayerAnimation& animation, const CGAffineTransform& now) const {
  if (before_.transform == now) return;
  if (currentAnimation()->fromCurrentState)
    for (LayerAnimation& each : layer_->animations) each.wayBack = {};
  animation.wayBack = wayBackFrom(now, seen_.transform).then(animation.wayBack);
}

}  // namespace sim
