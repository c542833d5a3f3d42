// Plays a script, line after line, against the session's phone.
#pragma once

#include <optional>
#include <vector>

#include "simulator/script/Command.h"
#include "simulator/script/Restart.h"
#include "simulator/script/Session.h"
#include "simulator/script/words/Script.h"

namespace sim {

class Interpreter {
 public:
  Interpreter(Session& session, const CommandTable& table, std::vector<ScriptLine> lines)
      : session_(session), table_(table), lines_(std::move(lines)) {}

  // Goes on behind the line that the session has reached, on most phones none. Throws
  // ScriptParseError for the first line that is wrong or whose expectation fails.
  void play();
  // Goes on after a restart of the host.
  void resume(const RestartState& state);
  // One line more than the script has, after one of those: for whoever types as the phone goes.
  // Throws ScriptParseError.
  void perform(const ScriptLine& line) { run(line); }

 private:
  const Command& commandOf(const ScriptLine& line) const;
  void acceptLines();
  void playFrom(std::size_t lineNumber);
  void repeatSetup();
  void run(const ScriptLine& line);
  void requireStage(const Command& command) const;

  Session& session_;
  const CommandTable& table_;
  std::vector<ScriptLine> lines_;
  int depth_ = 0;  // of the command that runs within others
};

}  // namespace sim
