// What came of registering a class written in C++ (objc/Class.h).
#pragma once

#include "objc/runtime.h"

namespace objc {

// Why a class could not be registered. Empty when nothing went wrong.
struct Refusal {
  const char* className = nullptr;  // lives as long as the program
  const char* reason = nullptr;

  explicit operator bool() const { return reason != nullptr; }
};

// What came of registering a class: the class, or why there is none.
class Registration {
 public:
  explicit Registration(Class* registered) : slot_(registered) {}
  explicit Registration(Refusal refusal) : refusal_(refusal) {}

  operator Class() const { return slot_ != nullptr ? *slot_ : nullptr; }
  Refusal refusal() const { return refusal_; }

  // Only while there are neither objects nor subclasses of the class, which is gone then: cls() of
  // its implementation gives nil again. Nothing for a refused one.
  void undo() const {
    if (slot_ == nullptr || *slot_ == nullptr) return;
    objc_disposeClassPair(*slot_);
    *slot_ = nullptr;
  }

 private:
  Class* slot_ = nullptr;  // of the implementation
  Refusal refusal_;
};

}  // namespace objc
