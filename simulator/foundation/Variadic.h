// Methods that take a variable number of arguments, which no C++ thunk can pass on.
#pragma once

#include <cstdarg>
#include <type_traits>

#include "objc/runtime.h"
#include "simulator/runtime/Variadics.h"
#include "simulator/standin/Fidelity.h"

namespace sim {

struct VariadicMethod {
  Class cls;
  char kind;  // '-' or '+'
  const char* name;
  const char* types;  // of the arguments before the dots
};

// The method from its form that takes a list.
template <auto form, class Shape = decltype(form)>
struct WithDots;
template <auto form, class R>
struct WithDots<form, R (*)(id, SEL, id, std::va_list)> {
  static R call(id self, SEL selector, id first, ...) {
    std::va_list arguments;
    va_start(arguments, first);
    if constexpr (std::is_void_v<R>) {
      form(self, selector, first, arguments);
      va_end(arguments);
    } else {
      const R result = form(self, selector, first, arguments);
      va_end(arguments);
      return result;
    }
  }
};

// Adds the method, recorded as real, unless the phone lacks it. `form` takes what follows the
// first argument as a list.
template <auto form>
void addVariadic(const VariadicMethod& method) {
  if (method.cls == nullptr) return;
  const FidelityPage page("Foundation", class_getName(method.cls));
  if (!page.record(method.kind, method.name, {Grade::real, ""})) return;
  const bool isClassMethod = method.kind == '+';
  Class cls = isClassMethod ? object_getClass(reinterpret_cast<id>(method.cls)) : method.cls;
  const SEL name = sel_registerName(method.name);
  const IMP function = reinterpret_cast<IMP>(&WithDots<form>::call);
  class_addMethod(cls, name, function, method.types);
  sim::runtime::addVariadicMethod(name, function, reinterpret_cast<IMP>(form));
}

}  // namespace sim
