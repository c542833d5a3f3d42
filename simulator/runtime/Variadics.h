// Functions that take a variable number of arguments, in a second form that takes them as a list.
// Code for phones passes what follows the fixed arguments in another way than this system's does.
#pragma once

#include <cstdarg>
#include <cstdint>

#include "objc/runtime.h"

namespace sim::runtime {

// What may stand before the dots. A method's name is behind its receiver.
using VariadicMethodForm = void (*)(id, SEL, id first, std::va_list);
using VariadicFunctionForm = void (*)(id first, std::va_list);

// Both by the function with the dots. For the life of the process.
void addVariadicMethod(SEL selector, IMP function, IMP form);
void addVariadicFunction(void* function, VariadicFunctionForm form);

// nullptr when the function has no such form.
IMP variadicMethodForm(IMP function);
VariadicFunctionForm variadicFunctionForm(const void* function);

}  // namespace sim::runtime

// Bit (address / 16) % 64 is set for each selector that a method with dots has: what is not there
// is no such message.
extern "C" [[gnu::visibility("hidden")]] std::uint64_t simulatorRuntimeVariadicSelectors;
