// The words beside the wheels of a count-down.
#pragma once

#include <string>
#include <string_view>

namespace sim {

// In the language of a locale's identifier.
std::string hourUnit(long hours, std::string_view locale);
std::string minuteUnit(std::string_view locale);

}  // namespace sim
