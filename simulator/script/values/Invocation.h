// Messages and calls whose names and types are known only at run time.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "simulator/foundation/invocation/Value.h"

namespace sim {

// What the method takes and gives; empty when the receiver (an object or a class, not nil) has no
// such method. std::invalid_argument when its encoding cannot be called.
std::optional<Signature> methodSignature(objc::Object receiver, SEL selector);

// The arguments must be of the signature's types. A +1 result of alloc, new, copy, mutableCopy and
// init is taken over by the value.
Value sendMessage(objc::Object receiver, SEL selector, const Signature& signature,
                  std::vector<Value> arguments);
Value callFunction(void* function, const Signature& signature, std::vector<Value> arguments);

// A message without arguments; empty when the receiver has no such method.
std::optional<Value> sendIfKnown(objc::Object receiver, const std::string& selector);

}  // namespace sim
