// The codes that locale identifiers are made of, each list separated by blanks.
#pragma once

#include <string_view>

namespace sim {

extern const std::string_view languageCodes;  // ISO 639, of two and of three letters
extern const std::string_view scriptCodes;    // ISO 15924, those that locales use
extern const std::string_view regionCodes;    // ISO 3166, and the numbers of larger areas
extern const std::string_view usualLocales;   // language and region where the language is spoken

}  // namespace sim
