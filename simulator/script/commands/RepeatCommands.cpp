// A command that is made of others.
#include <vector>

#include "simulator/script/Interrupted.h"
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

// As it would stand in a script.
std::string lineText(const ScriptLine& line) {
  std::string text;
  for (const Word& word : line.words)
    text += (text.empty() ? "" : " ") + (word.quoted ? sim::quoted(word.text) : word.text);
  return text;
}

// What `rounds` whole rounds and the first `count` commands of another have done.
std::vector<std::string> linesDone(const std::vector<ScriptLine>& commands, long rounds,
                                   std::size_t count) {
  std::vector<std::string> lines;
  std::string all;
  for (const ScriptLine& command : commands)
    all += (all.empty() ? "" : " then ") + lineText(command);
  if (rounds > 0) lines.push_back("repeat " + std::to_string(rounds) + ' ' + all);
  for (std::size_t index = 0; index < count; ++index) lines.push_back(lineText(commands[index]));
  return lines;
}

void repeat(Arguments& words) {
  Session& session = Session::current();
  const long times = words.integer("how often");
  const std::vector<ScriptLine> commands = readCommands(words, session.lineNumber);
  for (long round = 0; round < times; ++round) {
    for (std::size_t index = 0; index < commands.size(); ++index) {
      try {
        session.checkInterruption();
        session.runLine(commands[index]);
      } catch (Interrupted& interrupted) {
        const auto before = linesDone(commands, round, index);
        interrupted.lines.insert(interrupted.lines.begin(), before.begin(), before.end());
        throw;
      }
    }
  }
}

}  // namespace

void addRepeatCommands(CommandTable& table) {
  table.add({"repeat", Stage::any, "repeat N COMMAND… [then COMMAND…]",
             "repeat 3 next-track then advance 10s",
             "Runs one command, or several in turn, that often. A restart of the host ends it.",
             repeat});
}

}  // namespace sim
