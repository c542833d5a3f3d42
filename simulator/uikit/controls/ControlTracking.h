// How controls follow a finger.
#pragma once

#include "simulator/standin/StandIn.h"
#include "simulator/uikit/controls/UIControl.h"

namespace sim {

void addControlTracking(StandIn<UIControl>& control);

}  // namespace sim
