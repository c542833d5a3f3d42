// Commands that are made of others.
#include <string>
#include <utility>
#include <vector>

#include "simulator/script/Interrupted.h"
#include "simulator/script/Restart.h"
#include "simulator/script/Session.h"
#include "simulator/script/commands/PhoneCommands.h"

namespace sim {
namespace {

// What is no command is found before anything runs.
ScriptLine commandOf(std::vector<Word> words, const Arguments& behind) {
  if (words.empty()) behind.failHere("expected a command");
  if (words.front().text == "expect-crash")
    throw ScriptError(words.front().column, "expect-crash is no part of another command");
  const Session& session = Session::current();
  const std::size_t end = words.back().column + words.back().text.size();
  ScriptLine line{session.lineNumber, std::move(words), end};
  session.requireCommand(line);
  return line;
}

// What lies between the words `then` is one command each.
std::vector<ScriptLine> readCommands(Arguments& words) {
  std::vector<ScriptLine> commands;
  for (bool another = true; another;) {
    another = false;
    std::vector<Word> taken;
    while (!words.atEnd() && !(another = words.takeKeyword("then")))
      taken.push_back(words.word("a command"));
    commands.push_back(commandOf(std::move(taken), words));
  }
  words.finish();
  return commands;
}

// All that is left, which may be made of others in its turn.
ScriptLine readCommand(Arguments& words) {
  std::vector<Word> taken;
  while (!words.atEnd()) taken.push_back(words.word("a command"));
  words.finish();
  return commandOf(std::move(taken), words);
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
  const std::vector<ScriptLine> commands = readCommands(words);
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

// While a command runs that is not to end the host in order; one may run within another's.
class ExpectingOtherEnd {
 public:
  explicit ExpectingOtherEnd(const char* expected)
      : before_(std::exchange(Session::current().expectsOtherEnd,
                              std::string(expected) + ", but the host has ended in order")) {}
  ~ExpectingOtherEnd() { Session::current().expectsOtherEnd = before_; }
  ExpectingOtherEnd(const ExpectingOtherEnd&) = delete;
  ExpectingOtherEnd& operator=(const ExpectingOtherEnd&) = delete;

 private:
  std::string before_;
};

void expectRefused(Arguments& words) {
  const ScriptLine line = readCommand(words);
  const ExpectingOtherEnd expecting("expected it to be refused");
  try {
    Session::current().runLine(line);
  } catch (const Interrupted&) {
    throw;
  } catch (const ScriptParseError&) {
    return;
  }
  throw ScriptError(0, "expected it to be refused");
}

void expectCrash(Arguments& words) {
  const ScriptLine line = readCommand(words);
  const Session& session = Session::current();
  if (!session.expectCrash) throw ScriptError(0, "only a script expects a crash");
  const ExpectingOtherEnd expecting("expected the host to crash");
  session.expectCrash(recorded(session, "as the host died at " + session.place()));
  session.runLine(line);
  throw ScriptError(0, "expected the host to crash");
}

}  // namespace

void addRepeatCommands(CommandTable& table) {
  table.add({"repeat", Stage::any, "repeat N COMMAND… [then COMMAND…]",
             "repeat 3 next-track then advance 10s",
             "Runs one command, or several in turn, that often. A restart of the host ends it.",
             repeat});
  table.add({"expect-refused", Stage::any, "expect-refused COMMAND…",
             "expect-refused repeat 2 volume 0.5 then volume 2",
             "Requires that a command is refused; what it has done until then stays done.",
             expectRefused});
  table.add({"expect-crash", Stage::running, "expect-crash COMMAND…",
             "expect-crash send SBMediaController.sharedInstance fail",
             "Requires that the host crashes of a command; it is launched again at once, and the "
             "script goes on behind this line. Only in scripts.",
             expectCrash});
}

}  // namespace sim
