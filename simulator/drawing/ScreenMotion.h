// Whether what is seen changes by the mere passing of time.
#pragma once

#include "simulator/machine/Clock.h"

namespace sim {

// Some layer of a visible window is on its way, or dissolves, at that uptime.
bool screenMoves(Nanoseconds now);

}  // namespace sim
