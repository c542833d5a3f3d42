// What a view is for somebody who does not see the screen, as UIAccessibility tells it on the
// platform.
#pragma once

#include "simulator/drawing/Scene.h"

namespace sim {

// Nothing for views that are no control, and for controls that a finger does not reach.
std::optional<scene::Accessibility> accessibilityOf(objc::Object view);

}  // namespace sim
