// What the system calls its own things, in the phone's language.
#pragma once

#include <string>
#include <string_view>

namespace sim {

// For an English name from the table; that itself where the phone's language has no other.
std::string systemName(std::string_view english);

}  // namespace sim
