#include "simulator/runtime/Methods.h"

#include <mutex>

#include "simulator/runtime/Class.h"
#include "simulator/runtime/ClassChanges.h"
#include "simulator/runtime/ClassRegistry.h"
#include "simulator/runtime/Lists.h"
#include "simulator/runtime/MessageLookup.h"
#include "simulator/runtime/MethodCache.h"
#include "simulator/runtime/MethodResolution.h"

namespace sim::runtime {

Method findOwnMethod(Class cls, SEL selector) {
  const auto& methods = cls->data->methodsBySelector;
  const auto found = methods.find(selector);
  return found != methods.end() ? found->second : nullptr;
}

SEL cxxDestruct() {
  static const SEL selector = sel_registerName(".cxx_destruct");
  return selector;
}

Method findMethod(Class cls, SEL selector) {
  for (; cls != nullptr; cls = cls->superclass)
    if (const Method method = findOwnMethod(cls, selector)) return method;
  return nullptr;
}

namespace {

void stopInliningReferences(Class cls) {
  cls->flags.fetch_and(~std::uint32_t{ClassFlag::inlineReferences}, std::memory_order_release);
  for (const Class subclass : cls->data->subclasses) stopInliningReferences(subclass);
}

// objc_retain and its kin go past the methods only while nobody overrides them.
void noticeReferenceMethod(Class cls, SEL selector) {
  static const SEL retain = sel_registerName("retain");
  static const SEL release = sel_registerName("release");
  static const SEL autorelease = sel_registerName("autorelease");
  if (selector == retain || selector == release || selector == autorelease)
    stopInliningReferences(cls);
}

// Instances are to run it at their end: see destructInstance.
void noticeCxxDestruct(Class cls) {
  cls->flags.fetch_or(ClassFlag::cxxDestruct, std::memory_order_release);
  for (const Class subclass : cls->data->subclasses) noticeCxxDestruct(subclass);
}

// A resolver may now know what it did not know before.
void forgetUnanswered(Class cls) {
  cls->data->unanswered.clear();
  for (const Class subclass : cls->data->subclasses) forgetUnanswered(subclass);
}

void addNewMethod(Class cls, SEL selector, IMP implementation, const char* types) {
  auto& added = cls->data->methods.emplace_back(
      new objc_method{selector, types != nullptr ? types : "", implementation, cls});
  cls->data->methodsBySelector.emplace(selector, added.get());
  noticeReferenceMethod(cls, selector);
  if (selector == cxxDestruct()) noticeCxxDestruct(cls);
  forgetUnanswered(cls);
  refreshCaches(cls, selector, implementation);
}

IMP replaceImplementation(Method method, IMP implementation) {
  const IMP previous = method->implementation.exchange(implementation);
  noticeReferenceMethod(method->owner, method->name);
  refreshCaches(method->owner, method->name, implementation);
  return previous;
}

}  // namespace
}  // namespace sim::runtime

using namespace sim::runtime;

bool class_addMethod(Class cls, SEL selector, IMP implementation, const char* types) {
  if (cls == nullptr || selector == nullptr) return false;
  {
    const std::lock_guard guard(runtimeLock());
    if (findOwnMethod(cls, selector) != nullptr) return false;
    addNewMethod(cls, selector, implementation, types);
  }
  if (cls->has(ClassFlag::registered)) {
    reportClassChange({ClassChange::Kind::methodAdded, cls, sel_getName(selector),
                       types != nullptr ? types : ""});
  }
  return true;
}

IMP class_replaceMethod(Class cls, SEL selector, IMP implementation, const char* types) {
  if (cls == nullptr || selector == nullptr) return nullptr;
  const std::lock_guard guard(runtimeLock());
  if (const Method method = findOwnMethod(cls, selector))
    return replaceImplementation(method, implementation);
  addNewMethod(cls, selector, implementation, types);
  return nullptr;
}

Method class_getInstanceMethod(Class cls, SEL selector) {
  return findOrResolveMethod(cls, selector);
}

Method class_getClassMethod(Class cls, SEL selector) {
  return cls != nullptr ? class_getInstanceMethod(
                              cls->has(ClassFlag::metaclass) ? cls : cls->metaclass(), selector)
                        : nullptr;
}

IMP class_getMethodImplementation(Class cls, SEL selector) {
  if (cls == nullptr || selector == nullptr) return nullptr;
  const IMP found = lookUpImplementation(cls, selector);
  return found != nullptr ? found : &simulatorRuntimeForward;
}

#if defined(__x86_64__)
IMP class_getMethodImplementation_stret(Class cls, SEL selector) {
  const IMP found = class_getMethodImplementation(cls, selector);
  return found == &simulatorRuntimeForward ? &simulatorRuntimeForward_stret : found;
}
#endif

bool class_respondsToSelector(Class cls, SEL selector) {
  if (cls == nullptr || selector == nullptr) return false;
  return cachedImplementation(cls, selector) != nullptr ||
         findOrResolveMethod(cls, selector) != nullptr;
}

Method* class_copyMethodList(Class cls, unsigned int* count) {
  const std::lock_guard guard(runtimeLock());
  return copyNewestFirst(cls != nullptr ? &cls->data->methods : nullptr, count);
}

SEL method_getName(Method method) {
  return method != nullptr ? method->name : nullptr;
}

IMP method_getImplementation(Method method) {
  return method != nullptr ? method->implementation.load() : nullptr;
}

const char* method_getTypeEncoding(Method method) {
  return method != nullptr ? method->types.c_str() : nullptr;
}

IMP method_setImplementation(Method method, IMP implementation) {
  if (method == nullptr || implementation == nullptr) return nullptr;
  const std::lock_guard guard(runtimeLock());
  return replaceImplementation(method, implementation);
}

void method_exchangeImplementations(Method one, Method other) {
  if (one == nullptr || other == nullptr) return;
  const std::lock_guard guard(runtimeLock());
  const IMP first = one->implementation.load();
  replaceImplementation(one, other->implementation.load());
  replaceImplementation(other, first);
}
