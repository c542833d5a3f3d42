// Questions about a class that need no search.
#include "objc/runtime.h"
#include "simulator/runtime/Class.h"

using namespace sim::runtime;

const char* class_getName(Class cls) {
  return cls != nullptr ? cls->data->name.c_str() : "nil";
}

Class class_getSuperclass(Class cls) {
  return cls != nullptr ? cls->superclass : nullptr;
}

bool class_isMetaClass(Class cls) {
  return cls != nullptr && cls->has(ClassFlag::metaclass);
}

std::size_t class_getInstanceSize(Class cls) {
  constexpr std::size_t wordSize = sizeof(void*);
  return cls != nullptr ? (cls->data->instanceSize + wordSize - 1) / wordSize * wordSize : 0;
}
