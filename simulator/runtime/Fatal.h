// The end of the program for mistakes that have no way on.
#pragma once

#include "objc/runtime.h"

namespace sim::runtime {

// Prints one line on stderr and aborts.
[[noreturn]] [[gnu::format(printf, 1, 2)]] void fatal(const char* format, ...);

// What was printed; empty as long as nothing was.
const char* fatalMessage();

// The platform's line for a message that nobody implements. `receiver` is not nil.
[[noreturn]] void unrecognizedSelector(id receiver, SEL selector);

}  // namespace sim::runtime
