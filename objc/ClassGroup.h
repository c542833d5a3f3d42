// Classes written in C++ that exist together or not at all.
#pragma once

#include "objc/Class.h"

namespace objc {

// Registers the classes in this order. The first that cannot be registered takes those before it
// with it, and is the result; empty when all are there. Must run before any of them is used.
template <class First, class... Others>
[[nodiscard]] Refusal registerTogether() {
  const Registration made = First::registerClass();
  if (made.refusal()) return made.refusal();
  if constexpr (sizeof...(Others) > 0) {
    if (const Refusal refused = registerTogether<Others...>()) {
      made.undo();
      return refused;
    }
  }
  return {};
}

}  // namespace objc
