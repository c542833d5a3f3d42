// A view of an Objective-C object: one pointer, may be nil, never owns.
#pragma once

#include <concepts>
#include <cstddef>
#include <type_traits>

#include "objc/runtime.h"

namespace objc {

// Typed views derive from Object and add member functions that send, never state. Copying one
// copies a pointer; use Strong or Weak (objc/Ownership.h) to keep what it points at.
struct Object {
  id pointer = nullptr;

  constexpr Object() = default;
  constexpr Object(std::nullptr_t) {}
  constexpr explicit Object(id object) : pointer(object) {}

  constexpr id get() const { return pointer; }
  constexpr explicit operator bool() const { return pointer != nullptr; }
  friend constexpr bool operator==(Object left, Object right) = default;
};

template <class T>
concept View =
    std::derived_from<T, Object> && sizeof(T) == sizeof(id) && std::is_trivially_copyable_v<T>;

// The same pointer under another view; the caller vouches for the class.
template <View T>
constexpr T as(Object object) {
  return T(object.get());
}

}  // namespace objc
