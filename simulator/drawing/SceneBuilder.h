// Looks at the phone's windows and writes down what is seen of them.
#pragma once

#include "simulator/drawing/Scene.h"
#include "simulator/machine/Clock.h"
#include "simulator/quartzcore/CALayer.h"

namespace sim {

// The whole screen at this moment: the windows that are shown, the lowest first, each with its
// views and layers. What is hidden or wholly transparent has no node. Views that wait for layout
// are drawn as they stand.
scene::Node screenScene();

// One layer with all below it, at that uptime.
scene::Node sceneOf(const CALayer& layer, Nanoseconds now);

// Gives transitions their pictures; once a process.
void drawTransitions();

}  // namespace sim
