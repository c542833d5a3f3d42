// Animations: the values change at once, only the ends take their time.
#pragma once

#include "objc/Block.h"

namespace sim {

using AnimationBlock = objc::Block<void()>;
using AnimationCompletion = objc::Block<void(bool)>;

// Calls the completion with YES after the duration, or at once when the animation takes no time
// or animations are disabled. nil is called by nobody.
void finishAnimation(double seconds, AnimationCompletion completion);

bool animationsAreEnabled();
void setAnimationsEnabled(bool enabled);

}  // namespace sim
