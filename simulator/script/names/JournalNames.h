// The names in a journal line that a script writes down.
#pragma once

#include "simulator/script/Command.h"

namespace sim {

// A line in the notation of a method, `-[Class part:… part:…]` or such behind "call", "stub",
// "hook" or "method", has to name a class and a selector that there are, `*` aside; a line in that
// of a function, `Name(…)`, a function of the phone; `post "Name"` no slip of a name that the phone
// or an extension uses. Throws ScriptError, at once or when the host is launched: no line of the
// journal would ever be that one.
void requireKnownNames(const Word& journalLine);

}  // namespace sim
