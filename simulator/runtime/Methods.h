// Method lists of classes. All functions here are called with runtimeLock() held.
#pragma once

#include "objc/runtime.h"

namespace simulator::runtime {

// nullptr when the class itself has no such method.
Method findOwnMethod(Class cls, SEL selector);

// Searches the superclasses too. `cls` may be nil.
Method findMethod(Class cls, SEL selector);

}  // namespace simulator::runtime
