// UIView: animations.
#include "simulator/uikit/Animation.h"
#include "simulator/uikit/ViewMethods.h"

namespace sim {
namespace {

void animateCompletion(double seconds, AnimationBlock changes, AnimationCompletion ended) {
  changes();
  finishAnimation(seconds, ended);
}

void animate(double seconds, AnimationBlock changes) {
  animateCompletion(seconds, changes, nullptr);
}

void animateDelayed(double seconds, double delay, unsigned long, AnimationBlock changes,
                    AnimationCompletion ended) {
  animateCompletion(delay + seconds, changes, ended);
}

void animateSpring(double seconds, double delay, double, double, unsigned long,
                   AnimationBlock changes, AnimationCompletion ended) {
  animateCompletion(delay + seconds, changes, ended);
}

void performWithout(AnimationBlock changes) {
  const bool before = animationsAreEnabled();
  setAnimationsEnabled(false);
  changes();
  setAnimationsEnabled(before);
}

}  // namespace

void addViewAnimations(StandIn<UIView>& view) {
  constexpr const char* difference =
      "values are final at once; takes its time also when nothing changes";
  view.partialClassMethod<"animateWithDuration:animations:", &animate>(difference)
      .partialClassMethod<"animateWithDuration:animations:completion:", &animateCompletion>(
          difference)
      .partialClassMethod<"animateWithDuration:delay:options:animations:completion:",
                          &animateDelayed>(difference)
      .partialClassMethod<
          "animateWithDuration:delay:usingSpringWithDamping:"
          "initialSpringVelocity:options:animations:completion:",
          &animateSpring>(difference)
      .classMethod<"performWithoutAnimation:", &performWithout>()
      .classMethod<"areAnimationsEnabled", &animationsAreEnabled>()
      .classMethod<"setAnimationsEnabled:", &setAnimationsEnabled>();
}

}  // namespace sim
