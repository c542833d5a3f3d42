#include "simulator/script/words/WordReader.h"

#include "simulator/foundation/Unicode.h"
#include "simulator/machine/NumberReader.h"

namespace sim {
namespace {

bool isBlank(char letter) {
  return letter == ' ' || letter == '\t';
}

}  // namespace

std::size_t WordReader::column(std::size_t at) const {
  if (at < countedTo_) countedTo_ = counted_ = 0;
  counted_ += unicode::characterCount(line_.substr(countedTo_, at - countedTo_));
  countedTo_ = at;
  return counted_ + 1;
}

void WordReader::skipBlanks() {
  while (at_ < line_.size() && isBlank(line_[at_])) ++at_;
}

bool WordReader::atWordEnd() const {
  return at_ == line_.size() || isBlank(line_[at_]) || line_[at_] == '#';
}

void WordReader::requireWordEnd() const {
  if (!atWordEnd()) throw ScriptError(column(at_), "expected a space between two words");
}

std::optional<Word> WordReader::next() {
  skipBlanks();
  if (at_ == line_.size() || line_[at_] == '#') return std::nullopt;
  if (line_[at_] == '"') return quotedWord();
  if (line_[at_] == '{') return bracedWord();
  return plainWord();
}

Word WordReader::quotedWord() {
  const std::size_t start = at_++;
  Word word{"", true, column(start)};
  while (at_ < line_.size() && line_[at_] != '"') {
    if (line_[at_] == '\\')
      word.text += escape();
    else
      word.text += line_[at_++];
  }
  if (at_ == line_.size()) throw ScriptError(word.column, "expected a closing quote");
  ++at_;
  requireWordEnd();
  return word;
}

std::string WordReader::escape() {
  const std::size_t start = at_++;
  const char letter = at_ < line_.size() ? line_[at_++] : '\0';
  switch (letter) {
    case '"':
    case '\\':
      return {letter};
    case 'n':
      return "\n";
    case 'u':
      return unicodeEscape(start);
    default:
      throw ScriptError(column(start), R"(expected one of the escapes \" \\ \n \u{...})");
  }
}

std::string WordReader::unicodeEscape(std::size_t start) {
  const std::string_view rest = line_.substr(at_);
  const std::size_t close = rest.find('}');
  std::string character;
  if (rest.starts_with('{') && close != std::string_view::npos) {
    constexpr int hexadecimal = 16;
    const auto scalar = wholeNumber<unsigned long>(rest.substr(1, close - 1), hexadecimal);
    // NUL would end every C string that the text becomes.
    if (scalar && *scalar != 0) character = unicode::utf8Of(*scalar);
  }
  if (character.empty())
    throw ScriptError(column(start), R"(expected a character's number, as in \u{1F319})");
  at_ += close + 1;
  return character;
}

Word WordReader::bracedWord() {
  const std::size_t start = at_;
  int depth = 0;
  do {
    if (at_ == line_.size() || line_[at_] == '#')
      throw ScriptError(column(start), "expected a closing brace");
    if (line_[at_] == '{') ++depth;
    if (line_[at_] == '}') --depth;
    ++at_;
  } while (depth > 0);
  requireWordEnd();
  return {std::string(line_.substr(start, at_ - start)), false, column(start)};
}

Word WordReader::plainWord() {
  const std::size_t start = at_;
  while (!atWordEnd()) {
    if (line_[at_] == '"') throw ScriptError(column(at_), "expected a space before the quote");
    ++at_;
  }
  return {std::string(line_.substr(start, at_ - start)), false, column(start)};
}

}  // namespace sim
