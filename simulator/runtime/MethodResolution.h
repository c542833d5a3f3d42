// Methods that a class provides only when somebody asks for them: resolveInstanceMethod: and
// resolveClassMethod:.
#pragma once

#include "objc/runtime.h"

namespace sim::runtime {

// Searches the superclasses too and, when nobody has the method, asks the class's resolver. nullptr
// when even that brings none; the same question is not asked again until a method is added to the
// class or one above it. Called without runtimeLock(): the resolver is other people's code.
Method findOrResolveMethod(Class cls, SEL selector);

// Asks nobody.
bool hasMethod(Class cls, SEL selector);

}  // namespace sim::runtime
