// What the registration of a class written in C++ does whatever its state is: once in the program,
// where a template would be it once a class.
#pragma once

#include <cstddef>
#include <cstdint>

#include "objc/Registration.h"
#include "objc/runtime.h"

namespace objc {

// A class that is being made, with one instance variable that holds its state; or why there is
// none.
class ClassDefinition {
 public:
  // `name` lives as long as the program. `alignment` is the logarithm to base 2.
  [[gnu::noinline]] ClassDefinition(const char* name, Class superclass, std::size_t stateSize,
                                    std::uint8_t alignment)
      : stateName_(name) {
    if (const char* reason = make(name, superclass, stateSize, alignment))
      refusal_ = {name, reason};
  }

  // nil when the class was refused.
  Class get() const { return made_; }
  Refusal refusal() const { return refusal_; }

  // Registers the class, which must not have been refused. Gives the place of the state inside an
  // object, bytes.
  [[gnu::noinline]] std::ptrdiff_t finish() const {
    objc_registerClassPair(made_);
    return ivar_getOffset(class_getInstanceVariable(made_, stateName_.text));
  }

 private:
  // "_Counter_state", as each class of a line has one; cut off where it is too long.
  struct StateName {
    explicit StateName(const char* className) {
      char* end = append(text, "_");
      append(append(end, className), "_state");
    }
    char text[128] = {};

   private:
    char* append(char* to, const char* from) {
      while (*from != 0 && to < text + sizeof text - 1) *to++ = *from++;
      return to;
    }
  };

  // What went wrong; nullptr when nothing did.
  const char* make(const char* name, Class superclass, std::size_t stateSize,
                   std::uint8_t alignment) {
    if (superclass == nullptr) return "its superclass does not exist";
    Class made = objc_allocateClassPair(superclass, name, 0);
    if (made == nullptr) return "the name is taken";
    if (!class_addIvar(made, stateName_.text, stateSize, alignment, "?")) {
      objc_disposeClassPair(made);
      return "there is no place for its state";
    }
    made_ = made;
    return nullptr;
  }

  StateName stateName_;
  Refusal refusal_;
  Class made_ = nullptr;
};

}  // namespace objc
