#include "simulator/quartzcore/TimingCurve.h"

#include <algorithm>
#include <cmath>

namespace sim {
namespace {

// One coordinate of the cubic Bézier curve from 0 to 1 with these control values.
double bezier(double first, double second, double t) {
  const double rest = 1 - t;
  return 3 * rest * rest * t * first + 3 * rest * t * t * second + t * t * t;
}

// The curve's y where its x is `part`; the control points are (x1, 0) and (x2, 1).
double eased(double x1, double x2, double part) {
  double low = 0, high = 1;
  constexpr int halvings = 40;  // finer than any number that is drawn
  for (int i = 0; i < halvings; ++i) {
    const double middle = (low + high) / 2;
    (bezier(x1, x2, middle) < part ? low : high) = middle;
  }
  return bezier(0, 1, low);
}

// A damped spring that is nearly at rest when the duration ends.
double sprung(double damping, double velocity, double time, double duration) {
  constexpr double settled = 6.9;  // e^-6.9 is a thousandth
  const double ratio = std::clamp(damping, 0.01, 1.0);
  const double decay = settled / duration;
  const double frequency = decay / ratio;
  if (ratio == 1) return 1 - std::exp(-decay * time) * (1 + (decay - velocity) * time);
  const double swing = frequency * std::sqrt(1 - ratio * ratio);
  return 1 - std::exp(-decay * time) *
                 (std::cos(swing * time) + (decay - velocity) / swing * std::sin(swing * time));
}

}  // namespace

double TimingCurve::at(double part, double duration) const {
  if (part <= 0) return 0;
  if (part >= 1) return 1;
  switch (kind) {
    case Kind::easeInOut:
      return eased(0.42, 0.58, part);
    case Kind::easeIn:
      return eased(0.42, 1, part);
    case Kind::easeOut:
      return eased(0, 0.58, part);
    case Kind::linear:
      return part;
    case Kind::spring:
      return sprung(damping, initialVelocity, part * duration, duration);
  }
  return part;
}

}  // namespace sim
