#include "simulator/foundation/StringsTable.h"

#include <algorithm>
#include <cstdlib>

#include "simulator/foundation/PropertyListNode.h"
#include "simulator/foundation/Unicode.h"
#include "simulator/machine/FileContent.h"

namespace sim {
namespace {

struct Malformed {};

class Parser {
 public:
  explicit Parser(std::u16string text) : text_(std::move(text)) {}

  StringsTable table() {
    StringsTable result;
    for (skipBlanks(); at_ < text_.size(); skipBlanks()) {
      std::string key = string();
      skipBlanks();
      std::string value = key;
      if (takeIf(u'=')) {
        skipBlanks();
        value = string();
        skipBlanks();
      }
      if (!takeIf(u';')) throw Malformed();
      result.insert_or_assign(std::move(key), std::move(value));
    }
    return result;
  }

 private:
  void skipBlanks() {
    for (;;) {
      while (at_ < text_.size() && (text_[at_] == 0xfeff || unicode::isWhitespace(text_[at_])))
        ++at_;
      if (text_.compare(at_, 2, u"//") == 0)
        at_ = std::min(text_.find_first_of(u"\n\r\u2028\u2029", at_), text_.size());
      else if (text_.compare(at_, 2, u"/*") == 0)
        skipComment();
      else
        return;
    }
  }

  void skipComment() {
    const std::size_t end = text_.find(u"*/", at_ + 2);
    if (end == text_.npos) throw Malformed();
    at_ = end + 2;
  }

  std::string string() {
    if (takeIf(u'"')) return quoted(u'"');
    if (takeIf(u'\'')) return quoted(u'\'');
    std::u16string word;
    while (at_ < text_.size() && isBare(text_[at_])) word += text_[at_++];
    if (word.empty()) throw Malformed();
    return unicode::toUtf8(word);
  }

  std::string quoted(char16_t mark) {
    std::u16string units;
    for (;;) {
      const char16_t unit = take();
      if (unit == mark) return unicode::toUtf8(units);
      units += unit == u'\\' ? escaped() : unit;
    }
  }

  char16_t escaped() {
    const char16_t unit = take();
    switch (unit) {
      case u'a':
        return 7;
      case u'b':
        return 8;
      case u'f':
        return 12;
      case u'n':
        return u'\n';
      case u'r':
        return u'\r';
      case u't':
        return u'\t';
      case u'v':
        return 11;
      case u'U':
        return hexadecimal();
      default:
        return unit >= u'0' && unit <= u'7' ? octal(unit) : unit;
    }
  }

  // Up to four digits.
  char16_t hexadecimal() {
    unsigned value = 0;
    for (int i = 0; i < 4 && at_ < text_.size(); ++i) {
      constexpr std::u16string_view digits = u"0123456789abcdef";
      const char16_t letter =
          text_[at_] >= u'A' && text_[at_] <= u'F' ? text_[at_] + 32 : text_[at_];
      const std::size_t digit = digits.find(letter);
      if (digit == digits.npos) break;
      value = value * 16 + unsigned(digit);
      ++at_;
    }
    return char16_t(value);
  }

  // Up to three digits; beyond ASCII they would name NeXTSTEP's characters, which nobody writes.
  char16_t octal(char16_t first) {
    unsigned value = unsigned(first - u'0');
    for (int i = 0; i < 2 && at_ < text_.size() && text_[at_] >= u'0' && text_[at_] <= u'7'; ++i)
      value = value * 8 + unsigned(text_[at_++] - u'0');
    if (value > 0x7f) throw Malformed();
    return char16_t(value);
  }

  static bool isBare(char16_t unit) {
    return (unit >= u'a' && unit <= u'z') || (unit >= u'A' && unit <= u'Z') ||
           (unit >= u'0' && unit <= u'9') || std::u16string_view(u"_$/:.-").find(unit) != npos;
  }

  char16_t take() {
    if (at_ >= text_.size()) throw Malformed();
    return text_[at_++];
  }
  bool takeIf(char16_t wanted) {
    if (at_ >= text_.size() || text_[at_] != wanted) return false;
    ++at_;
    return true;
  }

  static constexpr std::size_t npos = std::u16string_view::npos;
  std::u16string text_;
  std::size_t at_ = 0;
};

// A byte order mark is skipped with the blanks. Without one, the zero in the first character tells:
// a table begins with ASCII.
std::optional<std::u16string> decoded(std::string_view bytes) {
  const std::string_view start = bytes.substr(0, 2);
  const bool little = start == "\xff\xfe" || (start.size() == 2 && start[0] != 0 && start[1] == 0);
  const bool big = start == "\xfe\xff" || (start.size() == 2 && start[0] == 0 && start[1] != 0);
  if (!little && !big) return unicode::fromUtf8(bytes);
  if (bytes.size() % 2 != 0) return std::nullopt;
  std::u16string units;
  for (std::size_t i = 0; i < bytes.size(); i += 2) {
    const auto first = static_cast<unsigned char>(bytes[i]);
    const auto second = static_cast<unsigned char>(bytes[i + 1]);
    units += char16_t(little ? second << 8 | first : first << 8 | second);
  }
  return units;
}

StringsTable tableOf(plist_t dictionary) {
  StringsTable table;
  plist_dict_iter next = nullptr;
  plist_dict_new_iter(dictionary, &next);
  for (;;) {
    char* key = nullptr;
    plist_t value = nullptr;
    plist_dict_next_item(dictionary, next, &key, &value);
    if (key == nullptr) break;
    std::uint64_t length = 0;
    if (const char* text = plist_get_string_ptr(value, &length))
      table.insert_or_assign(key, std::string(text, length));
    std::free(key);
  }
  std::free(next);
  return table;
}

}  // namespace

std::optional<StringsTable> parseStrings(std::string_view bytes) {
  auto text = decoded(bytes);
  if (!text) return std::nullopt;
  try {
    return Parser(std::move(*text)).table();
  } catch (const Malformed&) {
    return std::nullopt;
  }
}

std::optional<StringsTable> readStrings(const std::filesystem::path& path) {
  std::string problem;
  if (const PropertyListNode root = loadNode(path, &problem)) {
    if (plist_get_node_type(root.get()) != PLIST_DICT) return std::nullopt;
    return tableOf(root.get());
  }
  const auto bytes = fileContent(path);
  return bytes ? parseStrings(*bytes) : std::nullopt;
}

}  // namespace sim
