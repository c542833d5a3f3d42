#include "simulator/foundation/FormatParser.h"

#include <algorithm>

namespace sim {
namespace {

class Parser {
 public:
  explicit Parser(std::u16string_view format) : rest_(format) {}

  std::vector<FormatPiece> pieces() {
    while (!rest_.empty()) {
      const std::size_t percent = std::min(rest_.find(u'%'), rest_.size());
      text_ += rest_.substr(0, percent);
      rest_.remove_prefix(percent);
      if (!rest_.empty()) directive();
    }
    flushText();
    return std::move(pieces_);
  }

 private:
  void directive() {
    const std::u16string_view whole = rest_;
    rest_.remove_prefix(1);
    FormatDirective made;
    const std::optional<std::size_t> position = argumentPosition();
    while (!rest_.empty() && std::u16string_view(u"-+ #0'").find(rest_.front()) != rest_.npos)
      made.flags += char(take());
    made.width = number();
    if (takeIf(u'.')) made.precision = number().value_or(FormatNumber{});
    made.length = lengthModifier();
    if (rest_.empty()) {
      text_ += whole;
      return;
    }
    made.conversion = take();
    if (made.conversion == u'%') {
      text_ += u'%';
      return;
    }
    made.argument = position.value_or(nextArgument_);
    if (!position) ++nextArgument_;
    flushText();
    pieces_.emplace_back(std::move(made));
  }

  // "2$" names the second argument.
  std::optional<std::size_t> argumentPosition() {
    const std::u16string_view before = rest_;
    const std::optional<int> digits = takeDigits();
    if (digits && *digits > 0 && takeIf(u'$')) return std::size_t(*digits - 1);
    rest_ = before;
    return std::nullopt;
  }

  std::optional<FormatNumber> number() {
    if (takeIf(u'*')) {
      const std::optional<std::size_t> position = argumentPosition();
      return FormatNumber{0, position ? *position : nextArgument_++};
    }
    if (const std::optional<int> digits = takeDigits()) return FormatNumber{*digits, {}};
    return std::nullopt;
  }

  std::string lengthModifier() {
    std::string length;
    while (!rest_.empty() && std::u16string_view(u"hlqztjL").find(rest_.front()) != rest_.npos)
      length += char(take());
    return length;
  }

  std::optional<int> takeDigits() {
    constexpr int largest = 100'000;  // wider than that is a mistake, and would fill the memory
    std::optional<int> value;
    while (!rest_.empty() && rest_.front() >= u'0' && rest_.front() <= u'9')
      value = std::min(largest, value.value_or(0) * 10 + (take() - u'0'));
    return value;
  }

  char16_t take() {
    const char16_t unit = rest_.front();
    rest_.remove_prefix(1);
    return unit;
  }
  bool takeIf(char16_t wanted) {
    if (rest_.empty() || rest_.front() != wanted) return false;
    take();
    return true;
  }
  void flushText() {
    if (!text_.empty()) pieces_.emplace_back(std::move(text_));
    text_.clear();
  }

  std::u16string_view rest_;
  std::u16string text_;
  std::vector<FormatPiece> pieces_;
  std::size_t nextArgument_ = 0;
};

}  // namespace

std::vector<FormatPiece> parseFormat(std::u16string_view format) {
  return Parser(format).pieces();
}

}  // namespace sim
