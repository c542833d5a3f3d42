// The autorelease pools of the calling thread.
#pragma once

#include "objc/runtime.h"

namespace simulator::runtime {

// NSObject's autorelease: leaves the caller's reference to the innermost pool. Without a pool it
// prints a line on stderr and leaks, as the platform does. Returns the object.
id addToAutoreleasePool(id object);

}  // namespace simulator::runtime
