#include "simulator/foundation/Unicode.h"

#include <unicode/uchar.h>
#include <unicode/ustring.h>
#include <unicode/utf8.h>

#include <limits>
#include <stdexcept>

namespace sim::unicode {
namespace {

constexpr UChar32 replacement = 0xfffd;

// ICU counts in 32 bits.
template <class Text>
std::int32_t lengthOf(Text text) {
  constexpr std::size_t most = std::numeric_limits<std::int32_t>::max() / 4;
  if (text.size() > most) throw std::length_error("a text of more than 500 million characters");
  return std::int32_t(text.size());
}

// An empty view may have no data, which ICU takes for a mistake.
template <class Text>
auto dataOf(Text text) {
  static constexpr typename Text::value_type none[1] = {};
  return text.empty() ? none : text.data();
}

using CaseMap = std::int32_t (*)(char16_t*, std::int32_t, const char16_t*, std::int32_t,
                                 const char*, UErrorCode*);

std::u16string mapped(std::u16string_view units, CaseMap map) {
  constexpr const char* noLanguage = "";
  std::u16string result(3 * units.size(), 0);  // the most that a character becomes
  UErrorCode problem = U_ZERO_ERROR;
  result.resize(std::size_t(map(result.data(), lengthOf(std::u16string_view(result)), dataOf(units),
                                lengthOf(units), noLanguage, &problem)));
  return result;
}

}  // namespace

std::optional<std::u16string> fromUtf8(std::string_view bytes) {
  std::u16string units(bytes.size(), 0);
  std::int32_t count = 0;
  UErrorCode problem = U_ZERO_ERROR;
  u_strFromUTF8(units.data(), lengthOf(bytes), &count, dataOf(bytes), lengthOf(bytes), &problem);
  if (U_FAILURE(problem)) return std::nullopt;
  units.resize(std::size_t(count));
  return units;
}

std::u16string fromUtf8Lossy(std::string_view bytes) {
  std::u16string units(bytes.size(), 0);
  std::int32_t count = 0;
  UErrorCode problem = U_ZERO_ERROR;
  u_strFromUTF8WithSub(units.data(), lengthOf(bytes), &count, dataOf(bytes), lengthOf(bytes),
                       replacement, nullptr, &problem);
  units.resize(std::size_t(count));
  return units;
}

std::string toUtf8(std::u16string_view units) {
  std::string bytes(3 * units.size(), 0);
  std::int32_t count = 0;
  UErrorCode problem = U_ZERO_ERROR;
  u_strToUTF8WithSub(bytes.data(), 3 * lengthOf(units), &count, dataOf(units), lengthOf(units),
                     replacement, nullptr, &problem);
  bytes.resize(std::size_t(count));
  return bytes;
}

std::string utf8Of(unsigned long scalar) {
  if (scalar > UCHAR_MAX_VALUE || U_IS_SURROGATE(scalar)) return {};
  char bytes[U8_MAX_LENGTH];
  std::size_t count = 0;
  U8_APPEND_UNSAFE(bytes, count, UChar32(scalar));
  return {bytes, count};
}

std::size_t validUtf8Prefix(std::string_view bytes) {
  const std::int32_t length = lengthOf(bytes);
  for (std::int32_t at = 0; at < length;) {
    const std::int32_t start = at;
    UChar32 character = 0;
    U8_NEXT(bytes.data(), at, length, character);
    if (character < 0) return std::size_t(start);
  }
  return bytes.size();
}

std::size_t characterCount(std::string_view utf8) {
  const std::int32_t length = lengthOf(utf8);
  std::size_t count = 0;
  for (std::int32_t at = 0; at < length; ++count) U8_FWD_1(utf8.data(), at, length);
  return count;
}

std::u16string upperCase(std::u16string_view units) {
  return mapped(units, u_strToUpper);
}

std::u16string lowerCase(std::u16string_view units) {
  return mapped(units, u_strToLower);
}

std::string_view withoutByteOrderMark(std::string_view utf8) {
  constexpr std::string_view mark = "\xEF\xBB\xBF";
  return utf8.starts_with(mark) ? utf8.substr(mark.size()) : utf8;
}

bool isNewline(char16_t unit) {
  return (unit >= 0x0a && unit <= 0x0d) || unit == 0x85 || unit == 0x2028 || unit == 0x2029;
}

bool isWhitespace(char16_t unit) {
  return u_isUWhiteSpace(unit) != 0;
}

}  // namespace sim::unicode
