// Processes of another user of this machine.
#pragma once

#include <sys/types.h>

#include <functional>

namespace sim {

inline constexpr uid_t nobody = 65534;

// Whether there can be one: only root starts them, and not in every container.
bool canBecomeAnotherUser();

// Does the work as that user, and ends with what it gives.
pid_t startAsAnotherUser(const std::function<int()>& work);

// The same; waits for the end.
int asAnotherUser(const std::function<int()>& work);

}  // namespace sim
