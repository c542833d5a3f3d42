// Comparing what is drawn with a document that was kept.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace sim {

// Where two documents first differ, in words: the line, what was expected there and what was found.
// Nothing when they are the same.
std::optional<std::string> firstDifference(std::string_view expected, std::string_view found);

}  // namespace sim
