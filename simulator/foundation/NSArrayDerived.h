// NSArray's methods that make other arrays, or a string, from it.
#pragma once

#include "simulator/StandIn.h"
#include "simulator/foundation/NSArray.h"

namespace sim {

void addDerivedArrays(StandIn<NSArray>& standIn);

}  // namespace sim
