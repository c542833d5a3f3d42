// Compares what the bridge is about to do with the types the runtime has on record.
//
// A wrong argument width or result type is a silent ABI bug on a phone. In checked builds
// (OBJC_CHECK_TYPES, on wherever the code is developed and tested) it stops the program with
// class, selector, place, expected and found. Unchecked builds compile all of this to nothing.
#pragma once

#include "objc/Encoding.h"
#include "objc/Selector.h"
#include "objc/runtime.h"

namespace objc {

#ifdef OBJC_CHECK_TYPES
inline constexpr bool checksTypes = true;
#else
inline constexpr bool checksTypes = false;
#endif

// Stops unless `mine` and `registered` describe the same calling convention. Names of classes
// and structures, frame offsets and qualifiers are not compared; objects, classes and blocks are
// all pointers to objects.
void requireSameTypes(const char* action, Class cls, SEL name, const char* mine,
                      const char* registered);

// The class is remembered, so a warm call costs one load and one comparison.
template <class R, FixedString Name, class... Args>
void checkSend(id receiver, SEL name) {
  if constexpr (checksTypes) {
    static Class checked;
    Class cls = object_getClass(receiver);
    if (__atomic_load_n(&checked, __ATOMIC_RELAXED) == cls) return;
    // Unknown selectors are the runtime's to report.
    if (Method method = class_getInstanceMethod(cls, name))
      requireSameTypes("send", cls, name, methodEncoding<R, Args...>.c_str(),
                       method_getTypeEncoding(method));
    __atomic_store_n(&checked, cls, __ATOMIC_RELAXED);
  }
}

template <class R, class... Args>
void checkSuper(Class implementing, SEL name) {
  if constexpr (checksTypes) {
    Class above = class_getSuperclass(implementing);
    if (Method method = class_getInstanceMethod(above, name))
      requireSameTypes("send to super", above, name, methodEncoding<R, Args...>.c_str(),
                       method_getTypeEncoding(method));
  }
}

// For overrides and hooks: `types` is the encoding of the C++ side.
inline void checkAgainstClass(const char* action, Class cls, SEL name, const char* types) {
  if constexpr (checksTypes) {
    if (Method method = class_getInstanceMethod(cls, name))
      requireSameTypes(action, cls, name, types, method_getTypeEncoding(method));
  }
}

}  // namespace objc
