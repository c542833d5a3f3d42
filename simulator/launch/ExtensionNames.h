// What an extension calls things, read from the extension itself.
#pragma once

#include <string>
#include <vector>

namespace sim {

// Every text in the constants of a loaded library that can be the name of a class, a selector, a
// key or a domain: letters, digits and _ : . $ up to a NUL. Adds those of the library to the sorted
// `names`. `handle` is what dlopen gave.
void addNamesWithin(void* handle, std::vector<std::string>& names);

}  // namespace sim
