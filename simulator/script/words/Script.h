// A phone script as it was read: lines of words.
#pragma once

#include <cstddef>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/script/Command.h"

namespace sim {

// Longer lines are no scripts but something else, given by mistake. A playlist of tens of thousands
// of songs fits.
inline constexpr std::size_t longestScriptLine = std::size_t(2) << 20;  // bytes

struct ScriptLine {
  std::size_t number = 0;   // 1-based
  std::vector<Word> words;  // never empty: blank lines and comments are left out
  std::size_t endColumn = 0;
};

// The words of one line, without its line break. Columns count characters. Throws ScriptError.
//
//   expect $panel.view.frame {{0, 0}, {390, 44}}   # a word in braces may contain spaces
//   log "a \"quoted\" word\n with \\ and \u{1F319}"
ScriptLine parseScriptLine(std::string_view text, std::size_t number);

// A ScriptError with its line, for what is found before anything runs.
class ScriptParseError : public std::runtime_error {
 public:
  ScriptParseError(std::size_t lineNumber, const ScriptError& error)
      : std::runtime_error(error.what()), line(lineNumber), column(error.column) {}
  std::size_t line;
  std::size_t column;
};

// Every line, in order. Throws ScriptParseError.
std::vector<ScriptLine> parseScript(std::string_view text);
// The whole file. Throws std::runtime_error when it cannot be read.
std::string scriptText(const std::filesystem::path& file);

}  // namespace sim
