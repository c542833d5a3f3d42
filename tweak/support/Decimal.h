// Integers as text, without the C library's formatting: its variadic functions are the one part
// of the calling convention in which the extension's two homes differ.
#pragma once

#include <charconv>

class Decimal {
 public:
  // At least `width` characters, filled with zeroes as "%02d" does: a sign counts.
  explicit Decimal(long value, int width = 1) {
    char digits[24];
    const char* end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    char* out = text_;
    for (long missing = width - (end - digits); missing > 0 && value >= 0; --missing) *out++ = '0';
    for (const char* digit = digits; digit != end; ++digit) *out++ = *digit;
    *out = 0;
  }

  const char* text() const { return text_; }

 private:
  char text_[32];
};
