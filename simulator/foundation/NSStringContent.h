// NSString's methods that search, take apart and join text.
#pragma once

#include "simulator/StandIn.h"
#include "simulator/foundation/NSString.h"

namespace sim {

void addContentMethods(StandIn<NSString>& standIn);

}  // namespace sim
