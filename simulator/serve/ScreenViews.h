// The views on the screen, for who looks inside: what view debuggers show.
#pragma once

#include <nlohmann/json.hpp>
#include <optional>

#include "simulator/coregraphics/Geometry.h"

namespace sim {

// {views: [VIEW…], hit: …} of the windows that are shown, the lowest first, as docs/serve.md
// describes it. With a point of the screen, `hit` tells whose a touch there would be. Shows the
// phone no address, so that looking changes nothing of what it prints later.
nlohmann::json viewsOnScreen(std::optional<CGPoint> point);

}  // namespace sim
