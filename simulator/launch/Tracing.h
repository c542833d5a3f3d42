// Methods of the system whose calls are journalled, whatever their types.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace sim {

// Class and selector; of a class method with a + before it.
using TracedMethods = std::vector<std::pair<std::string, std::string>>;

// Replaces each method whose class there is by now, once, by one that journals
// "call -[Class selector:argument]", where Class is the receiver's own, and goes on to the
// original; for the life of the process. Throws HostError for a method that cannot be called from
// outside.
void traceNewClasses(const TracedMethods& methods);
// When all libraries are loaded. Throws HostError for a class or method that did not exist.
void requireTraced(const TracedMethods& methods);

}  // namespace sim
