// NSString's methods for paths.
#pragma once

#include "simulator/StandIn.h"
#include "simulator/foundation/NSString.h"

namespace sim {

void addPathMethods(StandIn<NSString>& standIn);

}  // namespace sim
