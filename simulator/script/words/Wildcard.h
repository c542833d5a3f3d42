// Patterns of journal lines.
#pragma once

#include <string_view>

namespace sim {

// The whole text, where each `*` of the pattern stands for any run of characters.
bool matchesWildcard(std::string_view text, std::string_view pattern);

}  // namespace sim
