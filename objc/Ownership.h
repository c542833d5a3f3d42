// Owning references. What is kept is spelt at the call site:
//
//   Strong<NSString> title = retain(other);            // shares a +0 result
//   Strong<NSDate> now = adopt(send<NSDate, "new">(cls)); // takes over a +1 result
//   Weak<UIView> parent = weak(view);                   // nil once the view is gone
//
// All are valid, and empty, when all their bytes are zero.
#pragma once

#include <utility>

#include "objc/Object.h"

namespace objc {

// Unconstrained, so that a view's own member functions may return owners of it.
template <class T>
class Strong {
 public:
  constexpr Strong() = default;
  constexpr Strong(std::nullptr_t) {}
  Strong(const Strong& other) : view_(T(objc_retain(other.view_.get()))) {}
  Strong(Strong&& other) noexcept : view_(other.detach()) {}
  // Empty before the object is released, whose dealloc may come back to whoever holds this owner.
  ~Strong() {
    static_assert(View<T>, "only views can be owned");
    objc_release(detach().get());
  }

  // By value: the old object is released last, after the new one is in place.
  Strong& operator=(Strong other) noexcept {
    std::swap(view_, other.view_);
    return *this;
  }

  // The view of a temporary owner lives until the end of the full expression. That is long enough
  // for an argument, which says get(); a variable would dangle. So a temporary does not convert by
  // itself, except as the receiver of a message.
  T get() const { return view_; }
  operator T() const& { return view_; }
  operator T() const&& = delete;
  T* operator->() { return &view_; }
  const T* operator->() const { return &view_; }
  explicit operator bool() const { return bool(view_); }

  // Gives the reference away: the caller now owes the release.
  [[nodiscard]] T detach() {
    T given = view_;
    view_ = T(nullptr);
    return given;
  }

  // The slot itself, for functions of the host that keep it current. They must release what they
  // replace and retain what they store.
  id* slot() { return &view_.pointer; }

  static Strong adopting(T view) {
    Strong owner;
    owner.view_ = view;
    return owner;
  }

 private:
  T view_;
};

// Shares: one more reference to an object somebody else owns. nil gives an empty owner.
template <View T>
[[nodiscard]] Strong<T> retain(T view) {
  return Strong<T>::adopting(T(objc_retain(view.get())));
}

// Takes over the reference that alloc, new, copy and the like have made for the caller.
template <View T>
[[nodiscard]] Strong<T> adopt(T view) {
  return Strong<T>::adopting(view);
}

// Gives the reference to the innermost autorelease pool; the view stays good until it is popped.
template <View T>
T autorelease(Strong<T> owner) {
  return T(objc_autorelease(owner.detach().get()));
}

template <View T>
class Weak {
 public:
  constexpr Weak() = default;
  explicit Weak(T view) { objc_initWeak(&location_, view.get()); }
  Weak(const Weak& other) { objc_copyWeak(&location_, &other.location_); }
  Weak(Weak&& other) noexcept { objc_moveWeak(&location_, &other.location_); }
  // Not objc_destroyWeak, which leaves the address of the object where it is: see ~Strong.
  ~Weak() { objc_storeWeak(&location_, nullptr); }

  Weak& operator=(const Weak& other) {
    if (this != &other) objc_storeWeak(&location_, other.load().get().get());
    return *this;
  }

  // The object, kept alive by the result; empty once it is being destroyed.
  Strong<T> load() const { return adopt(T(objc_loadWeakRetained(&location_))); }

 private:
  mutable id location_ = nullptr;  // its address is registered with the runtime
};

template <View T>
[[nodiscard]] Weak<T> weak(T view) {
  return Weak<T>(view);
}

// Everything autoreleased inside the scope is released at its end.
class AutoreleasePool {
 public:
  AutoreleasePool() : pool_(objc_autoreleasePoolPush()) {}
  ~AutoreleasePool() { objc_autoreleasePoolPop(pool_); }
  AutoreleasePool(const AutoreleasePool&) = delete;
  AutoreleasePool& operator=(const AutoreleasePool&) = delete;

 private:
  void* pool_;
};

}  // namespace objc
