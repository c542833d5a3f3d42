// Whether a phone can be set up in a certain way.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "simulator/serve/ServeState.h"

namespace sim {

// Boots a phone of these lines in a process of its own, so that nothing happens to the one that is
// being served. Throws RequestError with the line that is wrong.
std::function<void(const std::vector<std::string>& setup)> setupCheck(const ServeState& state);

}  // namespace sim
