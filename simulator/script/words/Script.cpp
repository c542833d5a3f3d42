#include "simulator/script/words/Script.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "simulator/foundation/Unicode.h"
#include "simulator/machine/FileContent.h"
#include "simulator/script/words/WordReader.h"

namespace sim {
namespace {

void requireText(std::string_view text) {
  if (text.size() > longestScriptLine)
    throw ScriptError(1, "expected a line of at most " + std::to_string(longestScriptLine) +
                             " bytes, found " + std::to_string(text.size()));
  if (const auto at = text.find('\0'); at != std::string_view::npos)
    throw ScriptError(unicode::characterCount(text.substr(0, at)) + 1,
                      "expected text, found a NUL byte");
  const std::size_t valid = unicode::validUtf8Prefix(text);
  if (valid != text.size())
    throw ScriptError(unicode::characterCount(text.substr(0, valid)) + 1, "expected UTF-8 text");
}

}  // namespace

ScriptLine parseScriptLine(std::string_view text, std::size_t number) {
  requireText(text);
  ScriptLine line{number, {}, unicode::characterCount(text) + 1};
  WordReader reader(text);
  while (auto word = reader.next()) line.words.push_back(std::move(*word));
  return line;
}

std::vector<ScriptLine> parseScript(std::string_view text) {
  text = unicode::withoutByteOrderMark(text);
  std::vector<ScriptLine> lines;
  for (std::size_t number = 1; !text.empty(); ++number) {
    std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    try {
      if (ScriptLine parsed = parseScriptLine(line, number); !parsed.words.empty())
        lines.push_back(std::move(parsed));
    } catch (const ScriptError& error) {
      throw ScriptParseError(number, error);
    }
  }
  return lines;
}

std::string scriptText(const std::filesystem::path& file) {
  if (std::filesystem::is_directory(file))
    throw std::runtime_error(file.string() + ": is a folder, not a script");
  auto text = fileContent(file);
  if (!text) throw std::runtime_error(file.string() + ": " + std::strerror(errno));
  return *std::move(text);
}

}  // namespace sim
