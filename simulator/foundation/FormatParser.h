// Takes a format string such as @"%1$@: %.2f %ld%%" apart.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace sim {

// A width or precision: given in digits, or as an argument ("*").
struct FormatNumber {
  int value = 0;
  std::optional<std::size_t> argument;  // index
};

struct FormatDirective {
  std::string flags;  // of "-+ #0'"
  std::optional<FormatNumber> width;
  std::optional<FormatNumber> precision;
  std::string length;  // "", "hh", "h", "l", "ll", "q", "z", "t", "j", "L"
  char16_t conversion = 0;
  std::size_t argument = 0;  // index
};

using FormatPiece = std::variant<std::u16string, FormatDirective>;

// Text and directives in order. A directive that the format cuts short is text.
std::vector<FormatPiece> parseFormat(std::u16string_view format);

}  // namespace sim
