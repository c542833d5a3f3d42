// Conversion between UTF-8 and UTF-16, the form that NSString counts in, and what characters are:
// by ICU.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace sim::unicode {

// Nothing for bytes that are not well-formed UTF-8.
std::optional<std::u16string> fromUtf8(std::string_view bytes);

// U+FFFD for each sequence of bytes that is none.
std::u16string fromUtf8Lossy(std::string_view bytes);

// Unpaired surrogates become U+FFFD.
std::string toUtf8(std::u16string_view units);

// UTF-8; empty for what is no Unicode scalar value.
std::string utf8Of(unsigned long scalar);

// How many bytes from the start are well-formed UTF-8: no surrogates, no over-long forms.
std::size_t validUtf8Prefix(std::string_view bytes);

// Some editors put one before a text.
std::string_view withoutByteOrderMark(std::string_view utf8);

// The code points of well-formed UTF-8.
std::size_t characterCount(std::string_view utf8);

// Without regard to language.
std::u16string upperCase(std::u16string_view units);
std::u16string lowerCase(std::u16string_view units);

bool isNewline(char16_t unit);
bool isWhitespace(char16_t unit);  // newlines too

}  // namespace sim::unicode
