// NSUserDefaults' methods for values of one type.
#pragma once

#include "simulator/StandIn.h"
#include "simulator/foundation/NSUserDefaults.h"

namespace sim {

void addTypedAccess(StandIn<NSUserDefaults>& standIn);

}  // namespace sim
