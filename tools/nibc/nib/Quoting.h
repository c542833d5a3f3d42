// Bytes from a file as text that any terminal can show.
#pragma once

#include <string>
#include <string_view>

namespace nib {

// Letters of any language stay; control characters, backslashes and bytes that are no UTF-8
// become \n, \\ or \xHH.
std::string escaped(std::string_view text);
// The same between double quotes, those inside escaped.
std::string quoted(std::string_view text);
// "<07 ff ...>"
std::string hexadecimal(std::string_view bytes);

// The number of bytes of the character that `text` begins with, 0 when these are no UTF-8.
std::size_t characterLength(std::string_view text);

}  // namespace nib
