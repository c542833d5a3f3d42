// Selectors as template arguments, looked up once per process.
#pragma once

#include "objc/FixedString.h"
#include "objc/runtime.h"

namespace objc {

// One selector of the process, by its name.
class SelectorSlot {
 public:
  constexpr explicit SelectorSlot(const char* name) : name_(name) {}

  // nullptr until it is looked up. Relaxed is enough: every thread that looks the name up gets the
  // same SEL.
  SEL known() const { return __atomic_load_n(&known_, __ATOMIC_RELAXED); }

  // Not inline: it would be most of the code of every message, and runs once.
  [[gnu::noinline, gnu::cold]] SEL lookUp() {
    SEL found = sel_registerName(name_);
    __atomic_store_n(&known_, found, __ATOMIC_RELAXED);
    return found;
  }

  SEL get() {
    SEL found = known();
    return found != nullptr ? found : lookUp();
  }

 private:
  SEL known_ = nullptr;
  const char* name_;
};

template <FixedString Name>
inline constinit SelectorSlot selectorSlot{pooled<Name>.c_str()};

template <FixedString Name>
SEL selector() {
  return selectorSlot<Name>.get();
}

// The number of arguments that a message of this name takes. Operators such as "=" do not exist
// in Objective-C, so every argument has its colon.
template <FixedString Name>
inline constexpr std::size_t argumentCount = Name.count(':');

}  // namespace objc
