#include "simulator/quartzcore/LayerAnimation.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

#include "simulator/phone/Phone.h"
#include "simulator/quartzcore/CALayer.h"

namespace sim {
namespace {

std::optional<AnimationTiming> current;

LayerAnimation& animationOf(CALayer& layer, const AnimationTiming& timing) {
  auto& all = layer.animations;
  if (all.empty() || all.back().timing.group != timing.group)
    all.push_back({LayerNumbers{}, timing});
  return all.back();
}

void removeEnded(std::vector<LayerAnimation>& animations, Nanoseconds now) {
  std::erase_if(animations, [now](const auto& each) { return each.timing.end() <= now; });
}

}  // namespace

const std::optional<AnimationTiming>& currentAnimation() {
  return current;
}
void setCurrentAnimation(const std::optional<AnimationTiming>& timing) {
  current = timing;
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
  return begin + nanoseconds(duration) * (autoreverses ? 2 : 1);
}

void animateFrom(CALayer& layer, const LayerValues& start, const AnimationTiming& timing) {
  const auto first = std::bit_cast<LayerNumbers>(start);
  const auto last = std::bit_cast<LayerNumbers>(layer.values());
  LayerAnimation& animation = animationOf(layer, timing);
  for (std::size_t i = 0; i < last.size(); ++i) animation.difference[i] += first[i] - last[i];
}

LayerChange::LayerChange(CALayer* layer) : layer_(current ? layer : nullptr) {
  if (layer_ == nullptr) return;
  const Nanoseconds now = Phone::current().clock.uptime();
  removeEnded(layer_->animations, now);
  before_ = layer_->values();
  seen_ = current->fromCurrentState ? layer_->presentation(now) : before_;
}

LayerChange::~LayerChange() {
  if (layer_ == nullptr) return;
  const auto before = std::bit_cast<LayerNumbers>(before_);
  const auto seen = std::bit_cast<LayerNumbers>(seen_);
  const auto after = std::bit_cast<LayerNumbers>(layer_->values());
  if (before == after) return;
  LayerAnimation& animation = animationOf(*layer_, *current);
  for (std::size_t i = 0; i < after.size(); ++i) {
    if (before[i] == after[i]) continue;
    if (current->fromCurrentState)
      for (LayerAnimation& each : layer_->animations) each.difference[i] = 0;
    animation.difference[i] += seen[i] - after[i];
  }
}

}  // namespace sim
