#include "simulator/quartzcore/AnimationGroup.h"

#include <algorithm>
#include <utility>

namespace sim {

void AnimationGroup::add(CALayer& layer) {
  if (std::find(layers_.begin(), layers_.end(), &layer) == layers_.end()) layers_.push_back(&layer);
}

void AnimationGroup::forget(const CALayer& layer) {
  std::erase(layers_, &layer);
}

void AnimationGroup::interrupt(const CALayer& layer) {
  forget(layer);
  wasInterrupted_ = true;
  if (layers_.empty()) end();
}

void AnimationGroup::end() {
  if (const Ended ended = std::exchange(ended_, nullptr)) ended(!wasInterrupted_);
}

}  // namespace sim
