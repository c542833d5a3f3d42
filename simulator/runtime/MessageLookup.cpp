#include "simulator/runtime/MessageLookup.h"

#include <mutex>

#include "simulator/runtime/Class.h"
#include "simulator/runtime/ClassRegistry.h"
#include "simulator/runtime/Fatal.h"
#include "simulator/runtime/Initialization.h"
#include "simulator/runtime/MethodCache.h"
#include "simulator/runtime/MethodResolution.h"
#include "simulator/runtime/Methods.h"
#include "simulator/runtime/Send.h"

namespace sim::runtime {

namespace {

// Search and fill under one lock: between the two nobody replaces the method.
IMP findAndCache(Class cls, SEL selector) {
  const std::lock_guard guard(runtimeLock());
  const Method method = findMethod(cls, selector);
  if (method == nullptr) return nullptr;
  const IMP implementation = method->implementation.load();
  // While +initialize runs, other threads must come here and wait for its end.
  if (cls->has(ClassFlag::initialized)) fillCache(cls, selector, implementation);
  return implementation;
}

}  // namespace

IMP lookUpImplementation(Class cls, SEL selector) {
  ensureBootstrapped();
  if (const IMP cached = cachedImplementation(cls, selector)) return cached;
  initializeIfNeeded(cls);
  if (const IMP found = findAndCache(cls, selector)) return found;
  return findOrResolveMethod(cls, selector) != nullptr ? findAndCache(cls, selector) : nullptr;
}

}  // namespace sim::runtime

using namespace sim::runtime;

IMP simulatorRuntimeLookUp(id receiver, SEL selector, Class cls) {
  if (cls == nullptr) unrecognizedSelector(receiver, selector);
  return lookUpImplementation(cls, selector);
}

id simulatorRuntimeForwardingTarget(id receiver, SEL selector) {
  static const SEL forwardingTarget = sel_registerName("forwardingTargetForSelector:");
  // A root class of its own may have no such method.
  id target = class_respondsToSelector(object_getClass(receiver), forwardingTarget)
                  ? send<id>(receiver, forwardingTarget, selector)
                  : nullptr;
  if (target == nullptr || target == receiver) unrecognizedSelector(receiver, selector);
  return target;
}
