// Which classes there are, and the lock that guards all class data.
#pragma once

#include <mutex>

#include "objc/runtime.h"

namespace sim::runtime {

struct ClassData;

// Guards every ClassData and every write to a method cache. No code of others runs under it.
std::mutex& runtimeLock();

// Makes NSObject and the block classes on first use, so that no order of static initialisers
// matters.
void ensureBootstrapped();

// Stores the isa of each class again when `begin` has decided how.
void signClasses(void (*begin)());

// Makes a class and its metaclass in memory the caller gives: `cls` is zeroed or holds nothing.
// For the block classes, whose addresses are symbols.
void constructClassPair(Class cls, Class superclass, const char* name, std::size_t extraBytes);

}  // namespace sim::runtime
