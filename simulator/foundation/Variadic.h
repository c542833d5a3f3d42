// Methods that take a variable number of arguments, which no C++ thunk can pass on.
#pragma once

#include "objc/runtime.h"
#include "simulator/standin/Fidelity.h"

namespace sim {

struct VariadicMethod {
  Class cls;
  char kind;  // '-' or '+'
  const char* name;
  const char* types;  // of the arguments before the dots
};

// Adds the method, recorded as real, unless the phone lacks it.
template <class Function>
void addVariadic(const VariadicMethod& method, Function* function) {
  if (method.cls == nullptr) return;
  const FidelityPage page("Foundation", class_getName(method.cls));
  if (!page.record(method.kind, method.name, {Grade::real, ""})) return;
  const bool isClassMethod = method.kind == '+';
  Class cls = isClassMethod ? object_getClass(reinterpret_cast<id>(method.cls)) : method.cls;
  class_addMethod(cls, sel_registerName(method.name), reinterpret_cast<IMP>(function),
                  method.types);
}

}  // namespace sim
