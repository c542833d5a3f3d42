// Short ways to write classes and messages in the tests of the runtime.
#pragma once

#include <string>

#include "objc/runtime.h"
#include "simulator/runtime/Send.h"

namespace testing_runtime {

inline SEL sel(const char* name) {
  return sel_registerName(name);
}

inline Class rootClass() {
  return objc_getClass("NSObject");
}

// A registered class without methods of its own. When a test before made one of that name, a
// number follows it.
inline Class makeClass(const std::string& name, Class superclass = rootClass()) {
  Class cls = objc_allocateClassPair(superclass, name.c_str(), 0);
  for (int number = 2; cls == nullptr; ++number) {
    cls = objc_allocateClassPair(superclass, (name + std::to_string(number)).c_str(), 0);
  }
  objc_registerClassPair(cls);
  return cls;
}

template <typename Function>
IMP asImplementation(Function* function) {
  return reinterpret_cast<IMP>(function);
}

template <typename Function>
void addMethod(Class cls, const char* name, Function* function, const char* types = "v@:") {
  class_addMethod(cls, sel(name), asImplementation(function), types);
}

template <typename Function>
void addClassMethod(Class cls, const char* name, Function* function, const char* types = "v@:") {
  addMethod(object_getClass(reinterpret_cast<id>(cls)), name, function, types);
}

template <typename Result = void, typename... Arguments>
Result send(id receiver, const char* name, Arguments... arguments) {
  return sim::runtime::send<Result>(receiver, sel(name), arguments...);
}

template <typename Result = void, typename... Arguments>
Result send(Class receiver, const char* name, Arguments... arguments) {
  return send<Result>(reinterpret_cast<id>(receiver), name, arguments...);
}

inline id make(Class cls) {
  return objc_alloc_init(cls);
}

}  // namespace testing_runtime
