#include "tools/nibc/xib/Source.h"

#include <algorithm>
#include <utility>

#include "tools/nibc/nib/Quoting.h"

namespace xib {

Source::Source(std::string text) : text_(std::move(text)) {
  for (std::size_t at = 0; at < text_.size();) {
    const std::size_t length = nib::characterLength(std::string_view(text_).substr(at));
    if (length == 0) throw Error(position(at), "is not UTF-8");
    at += length;
  }
}

Position Source::position(std::size_t offset) const {
  const std::string_view before = std::string_view(text_).substr(0, offset);
  const std::size_t lineStart = before.rfind('\n') + 1;  // 0 on the first line
  const auto isFirstByte = [](char byte) { return (byte & 0xc0) != 0x80; };
  const auto column =
      std::count_if(before.begin() + std::ptrdiff_t(lineStart), before.end(), isFirstByte);
  const auto lines = std::count(before.begin(), before.end(), '\n');
  return {std::size_t(lines) + 1, std::size_t(column) + 1};
}

// The XML parser tells where elements are but not their attributes. The tag is known to be well
// formed, so that every attribute is a name, an equals sign and a value in quotes.
std::size_t Source::attributeOffset(std::size_t tag, std::string_view attribute) const {
  constexpr const char* spaces = " \t\r\n";
  std::size_t at = text_.find_first_of(" \t\r\n/>", tag);
  while ((at = text_.find_first_not_of(spaces, at)) != std::string::npos) {
    const std::size_t nameEnd = text_.find_first_of(" \t\r\n=/>", at);
    if (nameEnd == std::string::npos || nameEnd == at) break;
    if (std::string_view(text_).substr(at, nameEnd - at) == attribute) return at;
    const std::size_t quote = text_.find_first_of("\"'", nameEnd);
    if (quote == std::string::npos) break;
    const std::size_t end = text_.find(text_[quote], quote + 1);
    if (end == std::string::npos) break;
    at = end + 1;
  }
  return tag;
}

}  // namespace xib
