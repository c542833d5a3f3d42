// Changes of layers that take time. A layer's own values are final at once; what is seen in the
// meantime is these values plus the part of each change that is still to come. So changes that
// overlap add up, and one that turns another back does it without a jump. Transforms are no sums
// but follow each other, and part of one is that part of its scale, shear, turn and move: what
// turns by half a turn is seen to turn, clockwise, and never the longer way round.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "simulator/machine/Clock.h"
#include "simulator/quartzcore/AnimationGroup.h"
#include "simulator/quartzcore/LayerValues.h"
#include "simulator/quartzcore/TimingCurve.h"

namespace sim {

struct CALayer;

struct AnimationTiming {
  std::shared_ptr<AnimationGroup> group;  // the same for all that one call animates
  Nanoseconds begin = 0;                  // uptime, after the delay
  double duration = 0;                    // seconds, of one way
  TimingCurve curve;
  bool repeats = false;       // for ever
  bool autoreverses = false;  // and back again
  bool fromCurrentState = false;
  bool ignoresTouches = false;  // no touch reaches the layer's view until it has ended

  double progress(Nanoseconds now) const;  // 0: at the start
  Nanoseconds end() const;                 // uptime; never, when it repeats
};

struct LayerAnimation {
  AnimationTiming timing;
  LayerNumbers difference{};    // start less end
  CGAffineTransform wayBack{};  // comes after the end's transform to make the start's

  bool changesNothing() const {
    return difference == LayerNumbers{} && wayBack == CGAffineTransform();
  }
  // Makes what is seen without this animation what is seen with it, at that uptime.
  void addTo(LayerValues& seen, Nanoseconds now) const;
};

// What changes of layers are animated by at present; nothing: they are seen at once.
const std::optional<AnimationTiming>& currentAnimation();
void setCurrentAnimation(const std::optional<AnimationTiming>& timing);

// The layer is seen going from those values to the ones that it has.
void animateFrom(CALayer& layer, const LayerValues& start, const AnimationTiming& timing);

// Lives while a layer's values change, and animates the change.
class LayerChange {
 public:
  explicit LayerChange(CALayer* layer);  // nullptr: there is nothing to animate
  ~LayerChange();
  LayerChange(const LayerChange&) = delete;
  LayerChange& operator=(const LayerChange&) = delete;

 private:
  void animateNumbers(LayerAnimation& animation, const LayerMeasures& now) const;
  void animateTransform(LayerAnimation& animation, const CGAffineTransform& now) const;
  void interruptReplaced() const;

  CALayer* layer_;
  LayerValues before_;
  LayerValues seen_;  // where the animation starts
};

}  // namespace sim
