// +initialize.
#pragma once

#include "objc/runtime.h"

namespace sim::runtime {

// Sends +initialize to the class (of a metaclass: to its class) unless that has happened,
// superclasses first. Waits while another thread is doing it; returns at once to the thread that
// is doing it. A subclass
// that is initialized from inside waits with the rest until its superclass is.
void initializeIfNeeded(Class cls);

}  // namespace sim::runtime
