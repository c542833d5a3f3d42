// How far an animation has come while its time passes.
#pragma once

namespace sim {

struct TimingCurve {
  // The first four as UIView's options number them.
  enum class Kind { easeInOut, easeIn, easeOut, linear, spring };

  Kind kind = Kind::easeInOut;
  double damping = 1;          // of a spring: below 1 it swings over its end
  double initialVelocity = 0;  // of a spring: whole ways per second

  // `part` of the duration has passed, from 0 to 1. A spring may be beyond 1 in between; at the
  // end every curve is at 1.
  double at(double part, double duration) const;
};

}  // namespace sim
