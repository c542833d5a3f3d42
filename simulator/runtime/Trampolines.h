// Small functions made at run time, each with one pointer of its own.
#pragma once

#include "objc/runtime.h"

namespace sim::runtime {

enum class TrampolineKind {
  plain,
  stret,  // x86-64 only: the first argument is where a large structure goes
};

// A function that calls `block` as imp_implementationWithBlock says. `block` is not retained.
IMP makeTrampoline(TrampolineKind kind, id block);

// nil for functions that are no trampolines.
id blockOfTrampoline(IMP function);

// The block of the trampoline that is no more; nil when it was none.
id destroyTrampoline(IMP function);

}  // namespace sim::runtime
