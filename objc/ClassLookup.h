// Classes of the host as template arguments, looked up by name when they are first used.
#pragma once

#include "objc/FixedString.h"
#include "objc/runtime.h"

namespace objc {

// nil while there is no class of that name. What was found is kept, an absence never: a library
// that is loaded later may bring the class. Relaxed is enough, as for selectors: every thread that
// finds the class finds the same one, and the runtime publishes what it points at.
template <FixedString Name>
Class classNamed() {
  static Class cached;
  Class known = __atomic_load_n(&cached, __ATOMIC_RELAXED);
  if (known == nullptr) {
    known = objc_getClass(Name.c_str());
    __atomic_store_n(&cached, known, __ATOMIC_RELAXED);
  }
  return known;
}

}  // namespace objc
