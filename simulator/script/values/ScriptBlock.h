// Blocks that scripts hand to the system or to an extension: they journal what they are called
// with.
#pragma once

#include <string>

#include "objc/Object.h"
#include "simulator/foundation/TypeEncoding.h"

namespace sim {

// A block of that signature, for the life of the process. A call of it journals its name and its
// arguments, block answer "Later", and gives a result of which all bytes are zero. Throws
// std::invalid_argument for a signature that cannot be called.
objc::Object scriptBlock(const std::string& name, const Signature& signature);

}  // namespace sim
