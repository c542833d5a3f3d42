// What NSString's format strings print.
#pragma once

#include <cstdarg>
#include <string>
#include <string_view>

namespace sim {

// The conversions of C's printf, and %@ (description), %C and %S (UTF-16). %s reads UTF-8.
std::u16string formatUnits(std::u16string_view format, std::va_list arguments);

}  // namespace sim
