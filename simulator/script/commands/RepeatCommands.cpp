// A command that is made of others.
#include <vector>

#include "simulator/script/Session.h"
#include "simulator/script/commands/PhoneCommands.h"

namespace sim {
namespace {

// What lies between the words `then` is one command each.
std::vector<ScriptLine> readCommands(Arguments& words, std::size_t lineNumber) {
  std::vector<ScriptLine> commands;
  for (bool another = true; another;) {
    another = false;
    ScriptLine line;
    line.number = lineNumber;
    while (!words.atEnd() && !(another = words.takeKeyword("then")))
      line.words.push_back(words.word("a command"));
    if (line.words.empty()) words.failHere("expected a command");
    line.endColumn = line.words.back().column + line.words.back().text.size();
    commands.push_back(std::move(line));
  }
  return commands;
}

void repeat(Arguments& words) {
  Session& session = Session::current();
  const long times = words.integer("how often");
  const std::vector<ScriptLine> commands = readCommands(words, session.lineNumber);
  for (long i = 0; i < times; ++i)
    for (const ScriptLine& command : commands) session.runLine(command);
}

}  // namespace

void addRepeatCommands(CommandTable& table) {
  table.add({"repeat", Stage::any, "repeat N COMMAND… [then COMMAND…]",
             "repeat 3 next-track then advance 10s",
             "Runs one command, or several in turn, that often. A restart of the host ends it.",
             repeat});
}

}  // namespace sim
