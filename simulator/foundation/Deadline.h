// Moments that may lie beyond what the clock can tell, such as NSDate's distant future.
#pragma once

#include <cmath>

#include "simulator/machine/Clock.h"

namespace sim {

// The uptime at which the wall clock shows this moment, seconds since the reference date, if nobody
// sets it meanwhile. Moments of this century resolve a tenth of a microsecond: rounded to whole
// microseconds, a moment is the one that was meant.
inline Nanoseconds uptimeAt(const Clock& clock, double moment) {
  const double distance = std::round((moment - clock.wall()) * 1e6) / 1e6;
  return deadline(clock.uptime(), nanoseconds(distance));
}

}  // namespace sim
