// In a host: what it leaves behind when it dies.
#pragma once

#include <string>

namespace sim {

class Session;

// From now on, whatever ends this process but std::exit() after stopWatching() and _exit() writes a
// CrashRecord to the descriptor before; and SIGUSR2 has one written of what it is doing.
void watchForCrashes(int descriptor, const Session& session);
void stopWatching();

// Dies for that reason.
[[noreturn]] void crash(const std::string& reason);

// As the host of a script that may take so much of the processor, 0 for any; before its begin.
void limitProcessor(double seconds);

}  // namespace sim
