// Tells of what is looked for and is not there.
#pragma once

#include "objc/runtime.h"

namespace sim::runtime {

struct Absence {
  Class cls;         // where a method to hook is missing; nullptr for a class that is missing
  const char* name;  // of the selector, or of the class
};

// One observer, called on the thread that looked; nullptr for none.
using AbsenceObserver = void (*)(const Absence&);
void observeAbsences(AbsenceObserver observer);

// Never called while the runtime is locked.
void reportAbsence(const Absence& absence);

}  // namespace sim::runtime
