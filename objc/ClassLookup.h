// Classes of the host as template arguments, looked up by name when they are first used.
#pragma once

#include "objc/FixedString.h"
#include "objc/runtime.h"

namespace objc {

// One class of the host, by its name.
class ClassSlot {
 public:
  constexpr explicit ClassSlot(const char* name) : name_(name) {}

  // nil while there is no class of that name. What was found is kept, an absence never: a library
  // that is loaded later may bring the class. Relaxed is enough, as for selectors: every thread
  // that finds the class finds the same one, and the runtime publishes what it points at.
  //
  // Not inline, for the size of those who ask: a message follows, which takes longer.
  [[gnu::noinline]] Class get() {
    Class known = __atomic_load_n(&known_, __ATOMIC_RELAXED);
    if (known == nullptr) {
      known = objc_getClass(name_);
      __atomic_store_n(&known_, known, __ATOMIC_RELAXED);
    }
    return known;
  }

 private:
  Class known_ = nullptr;
  const char* name_;
};

template <FixedString Name>
inline constinit ClassSlot classSlot{pooled<Name>.c_str()};

template <FixedString Name>
Class classNamed() {
  return classSlot<Name>.get();
}

}  // namespace objc
