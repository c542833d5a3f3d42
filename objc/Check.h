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

// The classes that one place has sent to and that were compared. As many as stand in `slots` cost
// a few loads and comparisons each time; where more meet, the oldest is compared again. Threads may
// lose or double an entry, which costs one more comparison of types.
class CheckedClasses {
 public:
  bool contains(Class cls) const {
    for (const Class& slot : slots_)
      if (__atomic_load_n(&slot, __ATOMIC_RELAXED) == cls) return true;
    return false;
  }

  void add(Class cls) {
    const unsigned int next = __atomic_fetch_add(&next_, 1, __ATOMIC_RELAXED);
    __atomic_store_n(&slots_[next % slots], cls, __ATOMIC_RELAXED);
  }

 private:
  static constexpr unsigned int slots = 8;
  Class slots_[slots];
  unsigned int next_;
};

// nil answers everything.
template <class R, FixedString Name, class... Args>
void checkSend(id receiver) {
  if constexpr (checksTypes) {
    if (receiver == nullptr) return;
    const SEL name = selector<Name>();
    static CheckedClasses checked;
    Class cls = object_getClass(receiver);
    if (checked.contains(cls)) return;
    // Unknown selectors are the runtime's to report.
    if (Method method = class_getInstanceMethod(cls, name))
      requireSameTypes("send", cls, name, methodEncoding<R, Args...>.c_str(),
                       method_getTypeEncoding(method));
    checked.add(cls);
  }
}

template <class R, FixedString Name, class... Args>
void checkSuper(Class implementing) {
  if constexpr (checksTypes) {
    const SEL name = selector<Name>();
    static CheckedClasses checked;
    Class above = class_getSuperclass(implementing);
    if (checked.contains(above)) return;
    if (Method method = class_getInstanceMethod(above, name))
      requireSameTypes("send to super", above, name, methodEncoding<R, Args...>.c_str(),
                       method_getTypeEncoding(method));
    checked.add(above);
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
