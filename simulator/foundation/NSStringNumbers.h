// NSString's methods that read numbers.
#pragma once

#include "simulator/foundation/NSString.h"
#include "simulator/standin/StandIn.h"

namespace sim {

void addNumberMethods(StandIn<NSString>& standIn);

}  // namespace sim
