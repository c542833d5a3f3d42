// State attached to objects of the host.
#pragma once

#include "objc/Object.h"
#include "objc/Selector.h"

namespace objc {

// One attached object, keyed by the selector of its getter as the platform's own categories do.
// The host object owns the value (retain, nonatomic) and releases it when it is destroyed.
template <FixedString Getter, View T>
struct Association {
  // nil when nothing is attached.
  static T get(Object owner) {
    return T(objc_getAssociatedObject(owner.get(), selector<Getter>()));
  }

  // nil removes the value. Only then may the owner be nil: the runtime ends the program otherwise.
  static void set(Object owner, T value) {
    objc_setAssociatedObject(owner.get(), selector<Getter>(), value.get(),
                             OBJC_ASSOCIATION_RETAIN_NONATOMIC);
  }
};

}  // namespace objc
