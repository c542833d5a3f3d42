// What a block made for an object's own member captures instead of `this`.
#pragma once

#include "objc/Ownership.h"

namespace objc {

// The state of an object of a class written in C++ (objc/Class.h), with a reference that keeps the
// object. Made by Implementation::retained(). A block that holds one keeps the object for as long
// as the block is kept, as a block of the platform's compiler does that names self. Moved from, it
// is empty and must not be used.
template <class State>
class Retained {
 public:
  explicit Retained(Object object) : object_(retain(object)) {}

  State* operator->() const { return &State::of(object_.get()); }
  State& operator*() const { return State::of(object_.get()); }

 private:
  Strong<Object> object_;
};

}  // namespace objc
