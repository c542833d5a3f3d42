// The time of day as the phone's clocks write it.
#pragma once

#include <string>
#include <string_view>

namespace sim {

// "22:05", or "10:05" in regions that count twelve hours, for a moment in UTC; in Arabic-Indic
// digits where they are usual.
std::string clockText(double secondsSinceReferenceDate, std::string_view locale);

}  // namespace sim
