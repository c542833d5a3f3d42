// A look at a property list's bytes before they are parsed.
#pragma once

#include <string_view>

namespace sim {

// False for lists whose containers are nested so deep that taking them apart could exhaust the
// stack, and for binary ones that refer to the same containers again and again, until the whole
// would not fit the memory; and for those with a zero character in a key, or anywhere in text form,
// which ends the program inside libplist. Other mistakes are the parser's to find.
bool isWithinBounds(std::string_view bytes);

}  // namespace sim
