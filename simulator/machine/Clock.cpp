#include "simulator/machine/Clock.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace sim {

Nanoseconds nanoseconds(double duration) {
  constexpr auto most = std::numeric_limits<Nanoseconds>::max();
  const double exact = duration * double(nanosecondsPerSecond);
  if (std::isnan(exact)) return 0;
  // double(most) rounds up to 2^63, which does not fit: saturate before converting.
  if (exact >= double(most)) return most;
  if (exact <= -double(most)) return -most;
  return std::llround(exact);
}

double seconds(Nanoseconds duration) {
  return double(duration) / double(nanosecondsPerSecond);
}

Nanoseconds deadline(Nanoseconds start, Nanoseconds distance) {
  Nanoseconds sum = 0;
  if (__builtin_add_overflow(start, distance, &sum))
    return distance > 0 ? std::numeric_limits<Nanoseconds>::max() : 0;
  return std::max<Nanoseconds>(sum, 0);
}

void Clock::advanceTo(Nanoseconds uptime) {
  if (uptime > uptime_) uptime_ = uptime;
}

void Clock::setWall(double secondsSinceReferenceDate) {
  wallAtZero_ = secondsSinceReferenceDate - seconds(uptime_);
}

void Clock::restore(Nanoseconds uptime, double wallAtZero) {
  uptime_ = uptime;
  wallAtZero_ = wallAtZero;
}

}  // namespace sim
