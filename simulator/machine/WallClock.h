// The wall clock is set, as a user or the network may set it, and those are told whom it concerns.
#pragma once

#include <functional>

namespace sim {

// Forward, or back by a negative number of seconds.
void moveWallClock(double distance);
// Is called with the distance once the clock shows the new time.
void onWallClockMove(std::function<void(double distance)> listener);

}  // namespace sim
