// performSelector:withObject:afterDelay: and its kin.
#pragma once

namespace sim {

void addDelayedPerforms();

}  // namespace sim
