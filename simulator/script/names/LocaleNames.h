// Which locale identifiers there can be.
#pragma once

#include <string>
#include <string_view>

namespace sim {

// Made of known codes, as "ar", "en_AR", "zh-Hans_CN" or "en_US_POSIX" are: a language, perhaps a
// script, perhaps a region. The two need not go together: a phone lets its user choose any.
bool isLocale(std::string_view identifier);

// `; did you mean "en_GB"?`, or nothing.
std::string nearestLocale(std::string_view identifier);

}  // namespace sim
