// NSUserDefaults' methods for values of one type.
#pragma once

#include "simulator/foundation/NSUserDefaults.h"
#include "simulator/standin/StandIn.h"

namespace sim {

void addTypedAccess(StandIn<NSUserDefaults>& standIn);

}  // namespace sim
