// The autorelease pools of the calling thread.
#pragma once

#include "objc/runtime.h"

namespace sim::runtime {

// NSObject's autorelease: leaves the caller's reference to the innermost pool. Without a pool it
// prints a line on stderr, and the reference goes when the thread ends; on the main thread, whose
// end is the program's, never. Returns the object.
id addToAutoreleasePool(id object);

}  // namespace sim::runtime
