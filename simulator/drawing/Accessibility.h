// What a view is for somebody who does not see the screen, as UIAccessibility tells it on the
// platform.
#pragma once

#include "simulator/drawing/Scene.h"

namespace sim {

// Nothing for controls that a finger does not reach, for text that is read as it stands, and for
// other views.
std::optional<scene::Accessibility> accessibilityOf(objc::Object view);

}  // namespace sim
