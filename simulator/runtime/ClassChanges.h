// Tells of what happens to classes after they are registered: what extensions do to their host.
#pragma once

#include "objc/runtime.h"

namespace sim::runtime {

struct ClassChange {
  enum class Kind { classRegistered, methodAdded, propertyAdded, methodHooked };
  Kind kind;
  Class cls;          // a metaclass for class methods
  const char* name;   // of the selector or property; of the class itself for classRegistered
  const char* types;  // encoding or attributes; empty where there is none
};

// One observer, called after each change on the thread that made it; nullptr for none. Methods and
// properties that a class gets before it is registered are part of the class, not changes. Gives
// the observer so far.
using ClassChangeObserver = void (*)(const ClassChange&);
ClassChangeObserver observeClassChanges(ClassChangeObserver observer);

// Never called while the runtime is locked.
void reportClassChange(const ClassChange& change);

}  // namespace sim::runtime
