// Whose process is at the other end of a connection within this machine.
#pragma once

#include <sys/types.h>

#include <optional>

namespace sim {

// The user, as the kernel knows it. Nothing when that end is closed already, or the kernel does not
// say.
std::optional<uid_t> peerUser(int descriptor);

}  // namespace sim
