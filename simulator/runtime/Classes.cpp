// Questions about a class that need no search.
#include "objc/runtime.h"
#include "simulator/runtime/Class.h"

using namespace simulator::runtime;

const char* class_getName(Class cls) {
  return cls != nullptr ? cls->data->name.c_str() : "nil";
}

Class class_getSuperclass(Class cls) {
  return cls != nullptr ? cls->superclass : nullptr;
}

bool class_isMetaClass(Class cls) {
  return cls != nullptr && cls->has(kMetaclass);
}

std::size_t class_getInstanceSize(Class cls) {
  constexpr std::size_t kWord = sizeof(void*);
  return cls != nullptr ? (cls->data->instanceSize + kWord - 1) / kWord * kWord : 0;
}
