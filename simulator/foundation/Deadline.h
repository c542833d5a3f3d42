// Moments that may lie beyond what the clock can tell, such as NSDate's distant future.
#pragma once

#include <algorithm>
#include <limits>

#include "simulator/phone/Clock.h"

namespace sim {

// `start` (uptime, not negative) and a distance of either sign; between 0 and the last moment that
// the clock knows.
inline Nanoseconds deadline(Nanoseconds start, Nanoseconds distance) {
  constexpr auto last = std::numeric_limits<Nanoseconds>::max();
  if (distance > last - start) return last;
  return std::max<Nanoseconds>(start + distance, 0);
}

}  // namespace sim
