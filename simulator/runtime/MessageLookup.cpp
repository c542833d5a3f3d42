#include "simulator/runtime/MessageLookup.h"

#include <mutex>

#include "simulator/runtime/Class.h"
#include "simulator/runtime/ClassRegistry.h"
#include "simulator/runtime/Fatal.h"
#include "simulator/runtime/Initialization.h"
#include "simulator/runtime/MethodCache.h"
#include "simulator/runtime/Methods.h"

namespace simulator::runtime {

IMP lookUpImplementation(Class cls, SEL selector) {
  ensureBootstrapped();
  if (const IMP cached = cachedImplementation(cls, selector)) {
    return cached;
  }
  initializeIfNeeded(cls);
  // Search and fill under one lock: between the two nobody replaces the method.
  const std::lock_guard guard(runtimeLock());
  const Method method = findMethod(cls, selector);
  if (method == nullptr) {
    return nullptr;
  }
  const IMP implementation = method->implementation.load();
  // While +initialize runs, other threads must come here and wait for its end.
  if (cls->has(kInitialized)) {
    fillCache(cls, selector, implementation);
  }
  return implementation;
}

void unrecognizedSelectorImplementation(id receiver, SEL selector) {
  unrecognizedSelector(receiver, selector);
}

}  // namespace simulator::runtime

IMP simulatorRuntimeLookUp(id receiver, SEL selector, Class cls) {
  using namespace simulator::runtime;
  const IMP found = cls != nullptr ? lookUpImplementation(cls, selector) : nullptr;
  if (found == nullptr) {
    unrecognizedSelector(receiver, selector);
  }
  return found;
}
