// UIView: animations.
#include "simulator/uikit/animation/Animation.h"
#include "simulator/uikit/views/ViewMethods.h"

namespace sim {
namespace {

void animateCompletion(double seconds, AnimationBlock changes, AnimationCompletion ended) {
  animateChanges({.duration = seconds}, changes, ended);
}

void animate(double seconds, AnimationBlock changes) {
  animateCompletion(seconds, changes, nullptr);
}

void animateDelayed(double seconds, double delay, unsigned long options, AnimationBlock changes,
                    AnimationCompletion ended) {
  animateChanges({.duration = seconds, .delay = delay, .options = options}, changes, ended);
}

void animateSpring(double seconds, double delay, double damping, double velocity,
                   unsigned long options, AnimationBlock changes, AnimationCompletion ended) {
  animateChanges({seconds, delay, options, damping, velocity}, changes, ended);
}

}  // namespace

void addViewAnimations(StandIn<UIView>& view) {
  view.classMethod<"animateWithDuration:animations:", &animate>()
      .classMethod<"animateWithDuration:animations:completion:", &animateCompletion>()
      .classMethod<"animateWithDuration:delay:options:animations:completion:", &animateDelayed>()
      .classMethod<
          "animateWithDuration:delay:usingSpringWithDamping:"
          "initialSpringVelocity:options:animations:completion:",
          &animateSpring>()
      .classMethod<"performWithoutAnimation:", &performWithoutAnimation>()
      .classMethod<"areAnimationsEnabled", &animationsAreEnabled>()
      .classMethod<"setAnimationsEnabled:", &setAnimationsEnabled>();
}

}  // namespace sim
