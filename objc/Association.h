// State attached to objects of the host.
#pragma once

#include "objc/Object.h"

namespace objc {

// One attached object under a key that is the type's own: `Key` is any tag type.
// The host object owns the value (retain, nonatomic) and releases it when it is destroyed.
template <class Key, View T>
struct Association {
  static T get(Object owner) { return T(objc_getAssociatedObject(owner.get(), key())); }

  // nil removes the value.
  static void set(Object owner, T value) {
    objc_setAssociatedObject(owner.get(), key(), value.get(), OBJC_ASSOCIATION_RETAIN_NONATOMIC);
  }

 private:
  static const void* key() {
    static char unique;
    return &unique;
  }
};

}  // namespace objc
