// What slices may import: the functions and variables of the phone's libraries, by the library's
// name and their own.
#pragma once

#include <string_view>

namespace sim::macho {

// "libobjc.A.dylib" and so on. Extensions that name no library of these do not load.
bool hasLibrary(std::string_view name);

// `symbol` has the underscore that C names begin with. nullptr when the library has none of it
// here. Not signed: tables of imports are not.
void* importedAddress(std::string_view library, std::string_view symbol);

}  // namespace sim::macho
