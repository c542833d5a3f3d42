// NSString's methods that search, take apart and join text.
#pragma once

#include "simulator/foundation/NSString.h"
#include "simulator/standin/StandIn.h"

namespace sim {

void addContentMethods(StandIn<NSString>& standIn);

}  // namespace sim
