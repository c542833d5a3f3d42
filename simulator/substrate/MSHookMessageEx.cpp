#include "objc/runtime.h"
#include "simulator/runtime/Absences.h"
#include "simulator/runtime/ClassChanges.h"

void MSHookMessageEx(Class cls, SEL selector, IMP replacement, IMP* previous) {
  Class target = cls;
  Method method = class_getInstanceMethod(target, selector);
  if (method == nullptr) {
    // A class that knows the selector only as a class method: the hook goes where it is found.
    target = object_getClass(reinterpret_cast<id>(cls));
    method = class_getInstanceMethod(target, selector);
  }
  if (method == nullptr) {
    if (cls != nullptr) sim::runtime::reportAbsence({cls, sel_getName(selector)});
    return;
  }
  // Read before the replacement: afterwards the inherited method may be somebody else's hook.
  const IMP inherited = method_getImplementation(method);
  const IMP own =
      class_replaceMethod(target, selector, replacement, method_getTypeEncoding(method));
  if (previous != nullptr) {
    *previous = own != nullptr ? own : inherited;
  }
  using sim::runtime::ClassChange;
  sim::runtime::reportClassChange(
      {ClassChange::Kind::methodHooked, target, sel_getName(selector), ""});
}
