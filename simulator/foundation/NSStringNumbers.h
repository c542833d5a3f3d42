// NSString's methods that read numbers.
#pragma once

#include "simulator/StandIn.h"
#include "simulator/foundation/NSString.h"

namespace sim {

void addNumberMethods(StandIn<NSString>& standIn);

}  // namespace sim
