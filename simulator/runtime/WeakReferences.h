// The table of zeroing weak references.
#pragma once

#include "objc/runtime.h"

namespace sim::runtime {

// Makes all weak references to the object read nil and forgets them: the object is about to be
// freed.
void clearWeakReferences(id object);

}  // namespace sim::runtime
