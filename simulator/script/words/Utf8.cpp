#include "simulator/script/words/Utf8.h"

#include <algorithm>

namespace sim {
namespace {

bool isContinuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xc0) == 0x80;
}

std::size_t sequenceLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xc2 && lead < 0xe0) return 2;
  if (lead >= 0xe0 && lead < 0xf0) return 3;
  if (lead >= 0xf0 && lead < 0xf5) return 4;
  return 0;
}

// The length of the well-formed sequence at the start of the text, or 0.
std::size_t wellFormed(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text[0]);
  const std::size_t length = sequenceLength(lead);
  if (length == 0 || length > text.size()) return 0;
  if (!std::all_of(text.begin() + 1, text.begin() + std::ptrdiff_t(length), isContinuation))
    return 0;
  if (length == 1) return 1;
  const auto second = static_cast<unsigned char>(text[1]);
  const bool overlong = (lead == 0xe0 && second < 0xa0) || (lead == 0xf0 && second < 0x90);
  const bool outside = (lead == 0xed && second >= 0xa0) || (lead == 0xf4 && second >= 0x90);
  return overlong || outside ? 0 : length;
}

}  // namespace

std::size_t validUtf8Prefix(std::string_view text) {
  std::size_t at = 0;
  while (at < text.size()) {
    const std::size_t length = wellFormed(text.substr(at));
    if (length == 0) break;
    at += length;
  }
  return at;
}

std::size_t characterCount(std::string_view text) {
  return std::size_t(
      std::count_if(text.begin(), text.end(), [](char byte) { return !isContinuation(byte); }));
}

std::string utf8(unsigned long scalar) {
  const auto tail = [scalar](int shift) { return char(0x80 | ((scalar >> shift) & 0x3f)); };
  if (scalar < 0x80) return {char(scalar)};
  if (scalar < 0x800) return {char(0xc0 | (scalar >> 6)), tail(0)};
  if (scalar >= 0xd800 && scalar < 0xe000) return {};
  if (scalar < 0x10000) return {char(0xe0 | (scalar >> 12)), tail(6), tail(0)};
  if (scalar < 0x110000) return {char(0xf0 | (scalar >> 18)), tail(12), tail(6), tail(0)};
  return {};
}

}  // namespace sim
