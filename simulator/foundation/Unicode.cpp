#include "simulator/foundation/Unicode.h"

#include <clocale>
#include <cstddef>
#include <cwctype>

namespace sim::unicode {
namespace {

constexpr char32_t replacement = 0xfffd;
constexpr char32_t malformed = 0xffffffff;

bool isHighSurrogate(char32_t unit) {
  return unit >= 0xd800 && unit < 0xdc00;
}
bool isLowSurrogate(char32_t unit) {
  return unit >= 0xdc00 && unit < 0xe000;
}

void append(std::u16string& units, char32_t character) {
  if (character < 0x10000) {
    units += char16_t(character);
    return;
  }
  units += char16_t(0xd800 + ((character - 0x10000) >> 10));
  units += char16_t(0xdc00 + ((character - 0x10000) & 0x3ff));
}

void append(std::string& bytes, char32_t character) {
  if (character < 0x80) {
    bytes += char(character);
    return;
  }
  const int followers = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
  constexpr unsigned leads[] = {0, 0xc0, 0xe0, 0xf0};
  bytes += char(leads[followers] | (character >> (6 * followers)));
  for (int shift = 6 * (followers - 1); shift >= 0; shift -= 6)
    bytes += char(0x80 | ((character >> shift) & 0x3f));
}

// How many bytes follow a lead byte; -1 for a byte that leads nothing.
int followersOf(unsigned char lead) {
  if (lead < 0x80) return 0;
  if (lead >= 0xc2 && lead < 0xe0) return 1;
  if (lead >= 0xe0 && lead < 0xf0) return 2;
  if (lead >= 0xf0 && lead < 0xf5) return 3;
  return -1;
}

// Takes one character; `malformed`, and one byte taken, where there is none.
char32_t next(std::string_view bytes, std::size_t& position) {
  const auto lead = static_cast<unsigned char>(bytes[position]);
  const int followers = followersOf(lead);
  if (followers == 0) return static_cast<unsigned char>(bytes[position++]);
  const std::size_t start = position++;
  if (followers < 0 || bytes.size() - start <= std::size_t(followers)) return malformed;
  char32_t character = lead & (0x3fu >> followers);
  for (int i = 1; i <= followers; ++i) {
    const auto byte = static_cast<unsigned char>(bytes[start + std::size_t(i)]);
    if ((byte & 0xc0) != 0x80) return malformed;
    character = (character << 6) | (byte & 0x3f);
  }
  constexpr char32_t smallest[] = {0, 0x80, 0x800, 0x10000};
  const bool surrogate = character >= 0xd800 && character < 0xe000;
  if (character < smallest[followers] || surrogate || character > 0x10ffff) return malformed;
  position = start + 1 + std::size_t(followers);
  return character;
}

char32_t next(std::u16string_view units, std::size_t& position) {
  const char32_t unit = units[position++];
  if (isHighSurrogate(unit) && position < units.size() && isLowSurrogate(units[position]))
    return 0x10000 + ((unit - 0xd800) << 10) + (units[position++] - 0xdc00);
  return unit;
}

// The same table on every machine, whatever its own locale.
locale_t unicodeLocale() {
  static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
  return locale;
}

template <class Map>
std::u16string mapped(std::u16string_view units, Map map) {
  std::u16string result;
  for (std::size_t position = 0; position < units.size();) {
    const char32_t character = next(units, position);
    append(result, char32_t(map(std::wint_t(character), unicodeLocale())));
  }
  return result;
}

}  // namespace

std::optional<std::u16string> fromUtf8(std::string_view bytes) {
  std::u16string units;
  for (std::size_t position = 0; position < bytes.size();) {
    const char32_t character = next(bytes, position);
    if (character == malformed) return std::nullopt;
    append(units, character);
  }
  return units;
}

std::u16string fromUtf8Lossy(std::string_view bytes) {
  std::u16string units;
  for (std::size_t position = 0; position < bytes.size();) {
    const char32_t character = next(bytes, position);
    append(units, character == malformed ? replacement : character);
  }
  return units;
}

std::string toUtf8(std::u16string_view units) {
  std::string bytes;
  for (std::size_t position = 0; position < units.size();) {
    const char32_t character = next(units, position);
    const bool unpaired = isHighSurrogate(character) || isLowSurrogate(character);
    append(bytes, unpaired ? replacement : character);
  }
  return bytes;
}

std::u16string upperCase(std::u16string_view units) {
  return mapped(units, towupper_l);
}

std::u16string lowerCase(std::u16string_view units) {
  return mapped(units, towlower_l);
}

bool isWhitespace(char16_t unit) {
  return (unit >= 9 && unit <= 13) || unit == 0x20 || unit == 0x85 || unit == 0xa0 ||
         unit == 0x1680 || (unit >= 0x2000 && unit <= 0x200a) || unit == 0x2028 || unit == 0x2029 ||
         unit == 0x202f || unit == 0x205f || unit == 0x3000;
}

}  // namespace sim::unicode
