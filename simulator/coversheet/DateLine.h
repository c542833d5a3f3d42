// The day as the line under the lock screen's clock writes it.
#pragma once

#include <string>
#include <string_view>

namespace sim {

// "Friday, January 1" for a moment in UTC, in the language of a locale's identifier: Arabic (in
// Arabic-Indic digits), Dutch, English, French, German, Italian, Japanese, Portuguese or Spanish;
// in English for any other. Always by the Gregorian calendar.
std::string dateLine(double secondsSinceReferenceDate, std::string_view locale);

}  // namespace sim
