// What the commands of the host's life share with the interpreter, which goes on with them after
// a restart.
#pragma once

#include "simulator/machine/Clock.h"

namespace sim {

// Lets virtual time pass up to this uptime, also across a death of the host on the way.
void advanceTo(Nanoseconds uptime);

// The host that has died comes back at this uptime.
void relaunchHost(Nanoseconds uptime);

// From now on the host dies at the session's kill points.
void watchKillPoints();

}  // namespace sim
