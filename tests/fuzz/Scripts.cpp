// Any bytes are a script or an error with its place; a word that was read is read again from its
// own notation.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "simulator/machine/Journal.h"
#include "simulator/script/words/Script.h"

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

void checkWord(const sim::Word& word, std::size_t endColumn) {
  require(word.column >= 1 && word.column < endColumn);
  require(word.quoted || !word.text.empty());
  const sim::ScriptLine again = sim::parseScriptLine(sim::quoted(word.text), 1);
  require(again.words.size() == 1 && again.words[0].quoted && again.words[0].text == word.text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  try {
    const std::string_view text(reinterpret_cast<const char*>(bytes), count);
    for (const sim::ScriptLine& line : sim::parseScript(text)) {
      require(!line.words.empty());
      for (const sim::Word& word : line.words) checkWord(word, line.endColumn);
    }
  } catch (const sim::ScriptParseError& error) {
    require(error.line >= 1 && error.column >= 1);
  }
  return 0;
}
