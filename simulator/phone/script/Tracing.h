// Methods of the system whose calls are journalled, whatever their types.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace sim {

// Replaces each method, given as class and selector (of a class method with a + before it), by one
// that journals "call -[Class selector:argument]", where Class is the receiver's own, and goes on
// to the original; for the life of the process.
// Throws HostError for a class or method that does not exist or cannot be called.
void traceMethods(const std::vector<std::pair<std::string, std::string>>& methods);

}  // namespace sim
