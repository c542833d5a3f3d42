// What a script says of an exported variable may be wrong.
#pragma once

#include <cstddef>

#include "simulator/foundation/TypeEncoding.h"

namespace sim {

// Whether these bytes can be a value of the type: each pointer in it that a value's notation or
// comparison follows is nil or leads to what it says. An object that has been freed may pass.
bool hasPlausiblePointers(const TypeEncoding& type, const std::byte* bytes);

}  // namespace sim
