// NSString's methods for paths.
#pragma once

#include "simulator/foundation/NSString.h"
#include "simulator/standin/StandIn.h"

namespace sim {

void addPathMethods(StandIn<NSString>& standIn);

}  // namespace sim
