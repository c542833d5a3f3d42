// Selectors as template arguments, looked up once per process.
#pragma once

#include "objc/FixedString.h"
#include "objc/runtime.h"

namespace objc {

// Relaxed is enough: every thread that looks the name up gets the same SEL.
template <FixedString Name>
SEL selector() {
  static SEL cached;
  SEL known = __atomic_load_n(&cached, __ATOMIC_RELAXED);
  if (known == nullptr) {
    known = sel_registerName(Name.c_str());
    __atomic_store_n(&cached, known, __ATOMIC_RELAXED);
  }
  return known;
}

// The number of arguments that a message of this name takes. Operators such as "=" do not exist
// in Objective-C, so every argument has its colon.
template <FixedString Name>
inline constexpr std::size_t argumentCount = Name.count(':');

}  // namespace objc
