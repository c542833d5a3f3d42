// What scripts need to know of UTF-8.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace sim {

// How many bytes from the start are well-formed: no surrogates, no over-long forms.
std::size_t validUtf8Prefix(std::string_view text);
// Of well-formed text: its code points.
std::size_t characterCount(std::string_view text);
// Empty for what is no Unicode scalar value.
std::string utf8(unsigned long scalar);

}  // namespace sim
