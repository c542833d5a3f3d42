// NSArray's methods that make other arrays, or a string, from it.
#pragma once

#include "simulator/foundation/NSArray.h"
#include "simulator/standin/StandIn.h"

namespace sim {

void addDerivedArrays(StandIn<NSArray>& standIn);

}  // namespace sim
