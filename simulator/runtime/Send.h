// The runtime's own messages.
#pragma once

#include "objc/runtime.h"

namespace sim::runtime {

// For results in registers only; the arguments' types are the method's.
template <class Result, typename... Arguments>
Result send(id receiver, SEL selector, Arguments... arguments) {
  using Prototype = Result (*)(id, SEL, Arguments...);
  return reinterpret_cast<Prototype>(&objc_msgSend)(receiver, selector, arguments...);
}

}  // namespace sim::runtime
