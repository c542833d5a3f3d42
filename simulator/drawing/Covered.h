// What nobody can see because something opaque lies over all of it.
#pragma once

#include "simulator/drawing/Scene.h"

namespace sim {

// Takes the windows out of a screen that lie under another one whose own view fills it, such as the
// lock screen: a page is told only of what is seen.
void dropCoveredWindows(scene::Node& screen);

}  // namespace sim
