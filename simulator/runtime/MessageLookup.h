// The slow half of a message: what the assembly calls when the cache has no answer.
//
// Who implements nothing of the name may still provide it (MethodResolution.h) or name another
// object (forwardingTargetForSelector:). forwardInvocation: is left out: what is not answered then
// is fatal.
#pragma once

#include "objc/runtime.h"

namespace sim::runtime {

// Sends +initialize if that is due, searches the superclasses too, asks the resolver and fills the
// cache. nullptr when nobody implements the selector.
IMP lookUpImplementation(Class cls, SEL selector);

}  // namespace sim::runtime

extern "C" {

// nil when the message is to be forwarded. `cls` is the class to search first, nil above a root
// class.
[[gnu::visibility("hidden")]] IMP simulatorRuntimeLookUp(id receiver, SEL selector, Class cls);

// Whom the receiver names for the message; never nil: with nobody named the program ends.
[[gnu::visibility("hidden")]] id simulatorRuntimeForwardingTarget(id receiver, SEL selector);

// The implementation of every method that does not exist: sends the message to that object, the
// arguments as they are. In assembly.
[[gnu::visibility("hidden")]] void simulatorRuntimeForward();
#if defined(__x86_64__)
[[gnu::visibility("hidden")]] void simulatorRuntimeForward_stret();
#endif
}
