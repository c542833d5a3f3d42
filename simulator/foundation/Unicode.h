// Conversion between UTF-8 and UTF-16, the form that NSString counts in.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace sim::unicode {

// Nothing for bytes that are not well-formed UTF-8.
std::optional<std::u16string> fromUtf8(std::string_view bytes);

// U+FFFD for every byte that belongs to no character.
std::u16string fromUtf8Lossy(std::string_view bytes);

// Unpaired surrogates become U+FFFD.
std::string toUtf8(std::u16string_view units);

// Simple case mapping: one character for one, without regard to language.
std::u16string upperCase(std::u16string_view units);
std::u16string lowerCase(std::u16string_view units);

bool isWhitespace(char16_t unit);

}  // namespace sim::unicode
