// The slow half of a message: what the assembly calls when the cache has no answer.
//
// Dynamic resolution (resolveInstanceMethod:) and forwarding (forwardingTargetForSelector:,
// forwardInvocation:) are left out: a selector that no class in the chain implements is fatal.
#pragma once

#include "objc/runtime.h"

namespace simulator::runtime {

// Sends +initialize if that is due, searches the superclasses too and fills the cache.
// nullptr when nobody implements the selector.
IMP lookUpImplementation(Class cls, SEL selector);

// What class_getMethodImplementation gives for a method that does not exist: fatal when called.
void unrecognizedSelectorImplementation(id receiver, SEL selector);

}  // namespace simulator::runtime

// Never nil. `cls` is the class to search first, nil above a root class.
extern "C" [[gnu::visibility("hidden")]] IMP simulatorRuntimeLookUp(id receiver, SEL selector,
                                                                    Class cls);
