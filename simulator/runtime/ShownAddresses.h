// The addresses that a phone shows. Those of this process differ from play to play, from machine to
// machine and from compiler to compiler; so the first thing of which one is shown has the first
// address, the next one the second, and two plays of a script print the same.
#pragma once

#include <cstddef>
#include <cstdint>

#include "objc/runtime.h"

namespace sim::runtime {

// Any thread. 0 for nil. An object has the same address until it is freed.
std::uintptr_t shownAddress(id object);
// What it is need not be known: a pointer to an object has the object's address, what can be no
// place of a process is a number and stays one.
std::uintptr_t shownAddress(const void* pointer);
// That of what was shown last in this place, alive or freed.
std::uintptr_t lastShownAddress(const void* pointer);

// How many have been given out: whoever compares sees whether there was a new one.
std::size_t shownAddressCount();

// For the runtime itself: what lay there is freed.
void endShownAddress(const void* pointer);

}  // namespace sim::runtime
