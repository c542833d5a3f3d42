// UIView's animations: the values change at once, what is seen of them takes its time.
#pragma once

#include "objc/Block.h"
#include "simulator/quartzcore/LayerAnimation.h"

namespace sim {

using AnimationBlock = objc::Block<void()>;
using AnimationCompletion = objc::Block<void(bool)>;

// UIViewAnimationOptions.
namespace animation {
constexpr unsigned long allowUserInteraction = 1 << 1, beginFromCurrentState = 1 << 2,
                        repeat = 1 << 3, autoreverse = 1 << 4, overrideInheritedDuration = 1 << 5,
                        overrideInheritedCurve = 1 << 6, allowAnimatedContent = 1 << 7,
                        showHideTransitionViews = 1 << 8, curveMask = 3 << 16,
                        curveEaseOut = 2 << 16, transitionMask = 7 << 20;
}  // namespace animation

struct AnimationParameters {
  double duration = 0;        // seconds
  double delay = 0;           // seconds
  unsigned long options = 0;  // see above
  // Of a spring, which then takes the place of the curve in the options.
  double damping = 0;          // 0: none
  double initialVelocity = 0;  // whole ways per second
};

// Runs the changes at once; the completion hears of the end as finishAnimation() says. In the
// changes of another animation it takes the other's duration and curve unless its options say
// otherwise. nil for either is called by nobody.
void animateChanges(const AnimationParameters& parameters, AnimationBlock changes,
                    AnimationCompletion completion);

// Its timing, were it to begin now.
AnimationTiming timingOf(const AnimationParameters& parameters);

// When all that it animates is set. Calls the completion with YES when the time has come, or at the
// main queue's next turn when nothing is animated: nothing changes, not in a window, no duration,
// animations disabled. With NO, and at once, when all that it animates has been taken away: a view
// has left its window, its animations were removed, another transition has begun.
void finishAnimation(const AnimationTiming& timing, AnimationCompletion completion);

// The block's changes are seen at once.
void performWithoutAnimation(AnimationBlock changes);

bool animationsAreEnabled();
void setAnimationsEnabled(bool enabled);

}  // namespace sim
