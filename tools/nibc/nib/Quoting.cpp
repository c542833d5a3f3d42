#include "tools/nibc/nib/Quoting.h"

namespace nib {
namespace {

std::string hexDigits(char byte) {
  constexpr const char* digits = "0123456789abcdef";
  const auto value = static_cast<unsigned char>(byte);
  return {digits[value >> 4], digits[value & 15]};
}

std::string escapedByte(char byte) {
  if (byte == '\n') return "\\n";
  if (byte == '\\') return "\\\\";
  return "\\x" + hexDigits(byte);
}

bool isPlain(std::string_view character) {
  if (character.size() != 1) return !character.empty();
  return character[0] >= ' ' && character[0] != '\\' && character[0] != '\x7f';
}

// Which first bytes announce how many; surrogates and over-long forms are told by the second byte.
std::size_t announcedLength(unsigned char first) {
  if (first < 0x80) return 1;
  if (first >= 0xc2 && first <= 0xdf) return 2;
  if (first >= 0xe0 && first <= 0xef) return 3;
  return first >= 0xf0 && first <= 0xf4 ? 4 : 0;
}

bool isSecondByte(unsigned char first, unsigned char second) {
  const unsigned char lowest = first == 0xe0 ? 0xa0 : first == 0xf0 ? 0x90 : 0x80;
  const unsigned char highest = first == 0xed ? 0x9f : first == 0xf4 ? 0x8f : 0xbf;
  return second >= lowest && second <= highest;
}

}  // namespace

std::size_t characterLength(std::string_view text) {
  if (text.empty()) return 0;
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const std::size_t length = announcedLength(byte(0));
  if (length > text.size()) return 0;
  for (std::size_t i = 1; i < length; ++i)
    if (!(i == 1 ? isSecondByte(byte(0), byte(1)) : (byte(i) & 0xc0) == 0x80)) return 0;
  return length;
}

std::string escaped(std::string_view text) {
  std::string result;
  while (!text.empty()) {
    const std::string_view character = text.substr(0, characterLength(text));
    if (isPlain(character)) {
      result += character;
      text.remove_prefix(character.size());
    } else {
      result += escapedByte(text[0]);
      text.remove_prefix(1);
    }
  }
  return result;
}

std::string quoted(std::string_view text) {
  std::string result = escaped(text);
  for (std::size_t at = 0; (at = result.find('"', at)) != std::string::npos; at += 2)
    result.insert(at, 1, '\\');
  return '"' + result + '"';
}

std::string hexadecimal(std::string_view bytes) {
  std::string result = "<";
  for (const char each : bytes) result += (result.size() > 1 ? " " : "") + hexDigits(each);
  return result + ">";
}

}  // namespace nib
