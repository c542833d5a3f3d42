// One process in the life of a served phone: each restart of the host is the beginning of another.
#pragma once

#include "simulator/script/Restart.h"
#include "simulator/serve/ServeState.h"

namespace sim {

// Both serve until the process is told to end, and give its exit status.
int beginServing(const ServeState& state);
int continueServing(const RestartState& saved);

}  // namespace sim
