// Method lists of classes. The functions that search are called with runtimeLock() held.
#pragma once

#include "objc/runtime.h"

namespace sim::runtime {

// nullptr when the class itself has no such method.
Method findOwnMethod(Class cls, SEL selector);

// Searches the superclasses too. `cls` may be nil.
Method findMethod(Class cls, SEL selector);

// .cxx_destruct: what a compiler generates to destroy the instance variables of one class.
SEL cxxDestruct();

}  // namespace sim::runtime
