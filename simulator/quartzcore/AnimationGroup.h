// What one call animates, on however many layers.
#pragma once

#include <functional>
#include <vector>

namespace sim {

struct CALayer;

class AnimationGroup {
 public:
  using Ended = std::function<void(bool finished)>;

  // Nothing was animated, or nothing is any more.
  bool isEmpty() const { return layers_.empty(); }
  const std::vector<CALayer*>& layers() const { return layers_; }
  void add(CALayer& layer);
  // The layer is not seen to change: nobody hears of it.
  void forget(const CALayer& layer);
  // Its animation was taken away early. With the last one the whole has ended, unfinished.
  void interrupt(const CALayer& layer);

  // Called once, by whichever of these comes first: end(), or interrupt() of the last layer.
  void whenEnded(Ended ended) { ended_ = std::move(ended); }
  void end();

 private:
  std::vector<CALayer*> layers_;  // not owned: a layer that goes is forgotten
  bool wasInterrupted_ = false;
  Ended ended_;
};

}  // namespace sim
