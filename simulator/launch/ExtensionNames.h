// What an extension calls things, read from the extension itself.
#pragma once

#include <set>
#include <string>

namespace sim {

// Every text in the constants of a loaded library that can be the name of a class, a selector, a
// key or a domain: letters, digits and _ : . $ up to a NUL. `handle` is what dlopen gave.
std::set<std::string, std::less<>> namesWithin(void* handle);

}  // namespace sim
