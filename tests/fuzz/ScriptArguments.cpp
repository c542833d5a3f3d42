// Any script of set-up commands runs, or has an error with its place; any value in one is read.
#include <cstddef>
#include <cstdint>
#include <set>

#include "objc/Ownership.h"
#include "simulator/script/Commands.h"
#include "simulator/script/Session.h"
#include "simulator/script/names/NameChecks.h"
#include "simulator/script/values/Literal.h"
#include "simulator/script/words/Script.h"
#include "tests/fuzz/FuzzPhone.h"

namespace sim {
namespace {

// What needs a running host, ends it, or reads this machine's files is left out.
bool isHarmless(const Command& command) {
  static const std::set<std::string> others = {"boot", "kill", "kill-at", "playlist-file",
                                               "respring"};
  return command.stage != Stage::running && !others.contains(command.name);
}

const CommandTable& commands() {
  static const CommandTable table = allCommands();
  return table;
}

// Paths send messages, and not every object survives every one.
bool isPath(const Word& word) {
  return !word.quoted &&
         (word.text.starts_with('$') ||
          objc_getClass(word.text.substr(0, word.text.find('.')).c_str()) != nullptr);
}

void readValues(const ScriptLine& line) {
  for (const Word& word : line.words)
    if (isPath(word)) return;
  Arguments arguments(line.words, line.endColumn);
  try {
    while (!arguments.atEnd()) readLiteral(arguments, "a value");
  } catch (const ScriptError& error) {
    require(error.column >= 1 && error.column <= line.endColumn);
  }
}

// As the interpreter does it, which takes whole scripts.
void play(const ScriptLine& line) {
  const Command* command = commands().find(line.words.front().text);
  if (command == nullptr || !isHarmless(*command)) return readValues(line);
  Arguments arguments({line.words.begin() + 1, line.words.end()}, line.endColumn);
  try {
    command->run(arguments);
    arguments.finish();
    Session::current().phone.queue.runDue();
  } catch (const ScriptError& error) {
    require(error.column <= line.endColumn);
  } catch (const std::exception& error) {
    require(*error.what() != '\0');
  }
}

std::vector<ScriptLine> linesOf(std::string_view text) {
  try {
    return parseScript(text);
  } catch (const ScriptParseError&) {
    return {};
  }
}

struct FuzzSession {
  TemporaryFolder root;
  Session session{{.script = "fuzz", .root = root.path(), .quiet = true}};
  FuzzSession() {
    commands();
    session.host.registerClasses();
  }
};

}  // namespace
}  // namespace sim

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  static sim::FuzzSession only;
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count) {
  const objc::AutoreleasePool pool;
  for (const sim::ScriptLine& line : sim::linesOf({reinterpret_cast<const char*>(bytes), count}))
    sim::play(line);
  // Names wait for a launch that never comes.
  sim::nameChecks().system = {};
  sim::nameChecks().all = {};
  return 0;
}
