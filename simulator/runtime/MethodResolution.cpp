#include "simulator/runtime/MethodResolution.h"

#include <mutex>

#include "simulator/runtime/Class.h"
#include "simulator/runtime/ClassRegistry.h"
#include "simulator/runtime/Methods.h"
#include "simulator/runtime/Send.h"

namespace sim::runtime {
namespace {

// A root class of its own may have no resolver. The answer counts for nothing: what matters is
// whether the method is there afterwards.
void ask(Class cls, SEL resolver, SEL wanted) {
  if (hasMethod(cls->metaclass(), resolver)) send<bool>(asObject(cls), resolver, wanted);
}

void askResolvers(Class cls, SEL wanted) {
  static const SEL resolveInstanceMethod = sel_registerName("resolveInstanceMethod:");
  static const SEL resolveClassMethod = sel_registerName("resolveClassMethod:");
  if (cls->has(ClassFlag::metaclass)) {
    ask(cls->data->instanceClass, resolveClassMethod, wanted);
    if (hasMethod(cls, wanted)) return;
  }
  // A class object is an instance too, of its metaclass.
  ask(cls, resolveInstanceMethod, wanted);
}

}  // namespace

bool hasMethod(Class cls, SEL selector) {
  const std::lock_guard guard(runtimeLock());
  return findMethod(cls, selector) != nullptr;
}

Method findOrResolveMethod(Class cls, SEL selector) {
  if (cls == nullptr || selector == nullptr) return nullptr;
  {
    const std::lock_guard guard(runtimeLock());
    const Method method = findMethod(cls, selector);
    // A class that is still being made is not asked: the question would send it +initialize
    // before it has all its methods.
    if (method != nullptr || !cls->has(ClassFlag::registered) ||
        cls->data->unanswered.contains(selector))
      return method;
  }
  askResolvers(cls, selector);
  const std::lock_guard guard(runtimeLock());
  const Method method = findMethod(cls, selector);
  if (method == nullptr) cls->data->unanswered.insert(selector);
  return method;
}

}  // namespace sim::runtime
