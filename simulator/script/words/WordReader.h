// Cuts one line of a script into words.
#pragma once

#include <optional>
#include <string_view>

#include "simulator/script/Command.h"

namespace sim {

class WordReader {
 public:
  // Well-formed UTF-8 without line breaks.
  explicit WordReader(std::string_view line) : line_(line) {}

  // Empty at the end of the line or at its comment. Throws ScriptError.
  std::optional<Word> next();

 private:
  std::size_t column(std::size_t at) const;
  void skipBlanks();
  bool atWordEnd() const;
  void requireWordEnd() const;
  Word quotedWord();
  Word bracedWord();
  Word plainWord();
  std::string escape();
  std::string unicodeEscape(std::size_t start);

  std::string_view line_;
  std::size_t at_ = 0;
  // The place whose column was asked for last: the next one is counted from there.
  mutable std::size_t countedTo_ = 0;
  mutable std::size_t counted_ = 0;
};

}  // namespace sim
