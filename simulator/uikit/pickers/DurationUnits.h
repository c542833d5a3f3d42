// The words beside the wheels of a count-down.
#pragma once

#include <string_view>

namespace sim {

struct DurationUnits {
  std::string_view hour;   // one
  std::string_view hours;  // any other number
  std::string_view minutes;
};

// In the language of a locale's identifier; in English for languages that are not known.
DurationUnits durationUnits(std::string_view locale);

}  // namespace sim
