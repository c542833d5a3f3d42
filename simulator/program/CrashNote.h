// Which line of the script ran when the program was stopped.
#pragma once

#include <cstddef>
#include <string>

namespace sim {

// When the process aborts, as for a message that nobody implements, stderr also gets
// "FILE:LINE:1: the phone stopped here". `lineNumber` is read at that time; 0 says nothing.
void noteScriptInCrashes(std::string script, const std::size_t& lineNumber);

}  // namespace sim
