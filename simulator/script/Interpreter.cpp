#include "simulator/script/Interpreter.h"

#include <exception>

#include "objc/Ownership.h"
#include "simulator/script/commands/HostCommands.h"
#include "simulator/script/names/NameChecks.h"

namespace sim {
namespace {

constexpr std::string_view endOfSetup = "boot";
constexpr int deepest = 100;  // keeps commands within commands from the end of the stack

class Deeper {
 public:
  explicit Deeper(int& depth) : depth_(++depth) {}
  ~Deeper() { --depth_; }
  Deeper(const Deeper&) = delete;
  Deeper& operator=(const Deeper&) = delete;

 private:
  int& depth_;
};

}  // namespace

void Interpreter::play() {
  acceptLines();
  // Before anything runs: a misspelt command late in a script is found at once.
  for (const ScriptLine& line : lines_) commandOf(line);
  watchKillPoints();
  playFrom(session_.lineNumber + 1);
}

void Interpreter::resume(const RestartState& state) {
  acceptLines();
  repeatSetup();
  restoreSession(session_, state);
  if (!state.failure.empty()) throw ScriptParseError(state.lineNumber, {1, state.failure});
  watchKillPoints();
  if (state.relaunchAt) relaunchHost(*state.relaunchAt);
  if (state.advanceUntil) advanceTo(*state.advanceUntil);
  playFrom(state.lineNumber + 1);
}

const Command& Interpreter::commandOf(const ScriptLine& line) const {
  const Word& name = line.words.front();
  const Command* command = name.quoted ? nullptr : table_.find(name.text);
  if (command == nullptr)
    throw ScriptParseError(line.number, {name.column, "expected a command, found " + name.text});
  return *command;
}

// For commands that are made of others.
void Interpreter::acceptLines() {
  session_.runLine = [this](const ScriptLine& line) { run(line); };
  session_.requireCommand = [this](const ScriptLine& line) { commandOf(line); };
}

void Interpreter::playFrom(std::size_t lineNumber) {
  for (const ScriptLine& line : lines_) {
    if (line.number >= lineNumber) run(line);
  }
}

// What kind of phone it is, is not on its disk: the script says it again.
void Interpreter::repeatSetup() {
  for (const ScriptLine& line : lines_) {
    const std::string& name = line.words.front().text;
    if (name == endOfSetup) return;
    if (table_.find(name)->stage == Stage::setup) run(line);
  }
}

void Interpreter::run(const ScriptLine& line) {
  const Word& name = line.words.front();
  const Command& command = commandOf(line);
  const Deeper deeper(depth_);
  if (depth_ > deepest)
    throw ScriptParseError(line.number,
                           {name.column, "expected at most " + std::to_string(deepest) +
                                             " commands within each other"});
  session_.lineNumber = line.number;
  nameChecks().system.beginLine(line.number);
  nameChecks().all.beginLine(line.number);
  bool hasReadAll = false;
  try {
    requireStage(command);
    const objc::AutoreleasePool pool;
    Arguments arguments({line.words.begin() + 1, line.words.end()}, line.endColumn);
    command.run(arguments);
    hasReadAll = arguments.isFinished();
    // A person cannot do two things within one turn of the phone's main queue.
    session_.phone.queue.runDue();
    ++session_.commandsDone;
  } catch (const ScriptParseError&) {
    throw;  // of a line within this one
  } catch (const ScriptError& error) {
    throw ScriptParseError(line.number,
                           {error.column == 0 ? name.column : error.column, error.what()});
  } catch (const std::exception& error) {
    throw ScriptParseError(line.number, {name.column, error.what()});
  }
  // The command's own mistake, which no script may expect.
  if (!hasReadAll)
    throw std::logic_error(command.name + " does not finish its words before it acts");
}

void Interpreter::requireStage(const Command& command) const {
  const HostState state = session_.state;
  if (command.stage == Stage::setup && state != HostState::off)
    throw ScriptError(0, command.name + " belongs before boot");
  const bool needsBoot = command.stage == Stage::running || command.stage == Stage::booted;
  if (needsBoot && state == HostState::off)
    throw ScriptError(0, command.name + " belongs after boot");
  if (command.stage == Stage::running && state == HostState::dead)
    throw ScriptError(0, command.name + " needs a running host: it has died, respring first");
}

}  // namespace sim
