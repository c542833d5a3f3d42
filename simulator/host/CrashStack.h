// The stack of a host that dies, or that is asked what it is doing.
#pragma once

#include <ucontext.h>

#include "simulator/host/CrashRecord.h"

namespace sim {

// Whatever unwinds may allocate the first time, which is not to be when the host dies.
void rehearseFrames();
// Of this thread; with a signal's context those below its handler. Allocates nothing.
void recordFrames(CrashRecord& record, const ucontext_t* context);
// Gives the recorded frames that are methods their names. Allocates.
void nameMethods(CrashRecord& record);

}  // namespace sim
