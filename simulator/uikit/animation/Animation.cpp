#include "simulator/uikit/animation/Animation.h"

#include "simulator/foundation/Kind.h"
#include "simulator/machine/Phone.h"
#include "simulator/quartzcore/CALayer.h"
#include "simulator/uikit/application/UIWindow.h"

namespace sim {
namespace {

struct Animations {
  bool areEnabled = true;
};

Animations& animations() {
  return Phone::current().state<Animations>();
}

TimingCurve curveOf(const AnimationParameters& parameters) {
  if (parameters.damping > 0)
    return {TimingCurve::Kind::spring, parameters.damping, parameters.initialVelocity};
  return {TimingCurve::Kind((parameters.options & animation::curveMask) >> 16), 1, 0};
}

// For the time of the changes.
class CurrentAnimation {
 public:
  explicit CurrentAnimation(const std::optional<AnimationTiming>& timing)
      : outer_(currentAnimation()) {
    setCurrentAnimation(timing);
  }
  ~CurrentAnimation() { setCurrentAnimation(outer_); }
  CurrentAnimation(const CurrentAnimation&) = delete;
  CurrentAnimation& operator=(const CurrentAnimation&) = delete;

 private:
  std::optional<AnimationTiming> outer_;
};

bool isInWindow(const CALayer& layer) {
  const CALayer* root = &layer;
  while (root->superlayer) root = &CALayer::of(root->superlayer);
  return isA<UIWindow>(root->delegate);
}

// Out of windows nothing is seen to move.
void dropUnseen(AnimationGroup& group) {
  const std::vector<CALayer*> layers = group.layers();
  for (CALayer* layer : layers) {
    if (isInWindow(*layer)) continue;
    layer->dropAnimations(group);
    group.forget(*layer);
  }
}

}  // namespace

bool animationsAreEnabled() {
  return animations().areEnabled;
}
void setAnimationsEnabled(bool enabled) {
  animations().areEnabled = enabled;
}

AnimationTiming timingOf(const AnimationParameters& parameters) {
  AnimationTiming timing;
  timing.group = std::make_shared<AnimationGroup>();
  timing.begin = deadline(Phone::current().clock.uptime(), nanoseconds(parameters.delay));
  timing.duration = parameters.duration;
  timing.curve = curveOf(parameters);
  timing.repeats = (parameters.options & animation::repeat) != 0;
  timing.autoreverses = (parameters.options & animation::autoreverse) != 0;
  timing.fromCurrentState = (parameters.options & animation::beginFromCurrentState) != 0;
  timing.ignoresTouches = (parameters.options & animation::allowUserInteraction) == 0;
  const auto& outer = currentAnimation();
  if (!outer) return timing;
  if ((parameters.options & animation::overrideInheritedDuration) == 0)
    timing.duration = outer->duration;
  if ((parameters.options & animation::overrideInheritedCurve) == 0) timing.curve = outer->curve;
  return timing;
}

void finishAnimation(const AnimationTiming& timing, AnimationCompletion completion) {
  MainQueue& queue = Phone::current().queue;
  MainQueue::Ticket atTheEnd = 0;
  if (completion) {
    auto kept = objc::adopt(objc::send<AnimationCompletion, "copy">(completion));
    timing.group->whenEnded([kept = std::move(kept)](bool finished) { kept.get()(finished); });
    if (!timing.repeats)
      atTheEnd = queue.add(timing.end(), [group = timing.group] { group->end(); });
  }
  queue.addNow([group = timing.group, atTheEnd] {
    dropUnseen(*group);
    if (!group->isEmpty()) return;
    Phone::current().queue.cancel(atTheEnd);
    group->end();
  });
}

void animateChanges(const AnimationParameters& parameters, AnimationBlock changes,
                    AnimationCompletion completion) {
  const AnimationTiming timing = timingOf(parameters);
  const bool takesTime = animations().areEnabled && timing.end() > Phone::current().clock.uptime();
  {
    const CurrentAnimation during(takesTime ? std::optional(timing) : std::nullopt);
    changes();
  }
  finishAnimation(timing, completion);
}

void performWithoutAnimation(AnimationBlock changes) {
  const bool before = std::exchange(animations().areEnabled, false);
  {
    const CurrentAnimation during(std::nullopt);
    changes();
  }
  animations().areEnabled = before;
}

}  // namespace sim
