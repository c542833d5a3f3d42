// Scripts that pages open, played step by step.
#include <unistd.h>

#include <algorithm>

#include "simulator/host/CrashHandler.h"
#include "simulator/script/words/Script.h"
#include "simulator/serve/Recording.h"
#include "simulator/serve/RequestError.h"
#include "simulator/serve/ServedPhone.h"

namespace sim {

using nlohmann::json;
using std::chrono::steady_clock;

namespace {

bool isAdvance(const std::string& line) {
  const auto first = line.find_first_not_of(" \t");
  if (first == std::string::npos) return false;
  const std::string word = line.substr(first, line.find_first_of(" \t", first) - first);
  return word == "advance" || word == "advance-to";
}

bool isBlank(const std::string& line) {
  const auto first = line.find_first_not_of(" \t");
  return first == std::string::npos || line[first] == '#';
}

// The first line from `line` on that says something; past the end when none does.
std::size_t nextLine(const std::vector<std::string>& lines, std::size_t line) {
  while (line <= lines.size() && isBlank(lines[line - 1])) ++line;
  return line;
}

}  // namespace

void ServedPhone::requireCommands(const std::string& script) const {
  try {
    for (const ScriptLine& line : parseScript(script)) {
      const Word& command = line.words.front();
      if (command.quoted || table_.find(command.text) == nullptr)
        throw ScriptParseError(line.number,
                               {command.column, "expected a command, found " + command.text});
    }
  } catch (const ScriptParseError& error) {
    throw RequestError(400, error.what(), {{"line", error.line}, {"column", error.column}});
  }
}

// Time stands still between the lines. After a failure it goes on behind the line that failed.
json ServedPhone::stepScript(std::optional<long> lines) {
  if (!state_.script) throw RequestError(409, "no script is open");
  OpenScript& script = *state_.script;
  using State = OpenScript::State;
  if (script.state == State::finished) throw RequestError(409, "the script is at its end");
  catchUp();
  state_.paused = true;
  pace_.setPaused(true, steady_clock::now());
  report_.demand("clock");
  if (script.failure) {
    script.line = nextLine(scriptLines_, script.failure->line + 1);
    script.failure.reset();
    script.remainder.clear();
  }
  script.state = lines ? State::ready : State::running;
  for (long left = lines.value_or(0); left > 0 && script.state == State::ready; --left)
    playScriptLine();
  return scriptPart();
}

void ServedPhone::playScriptLine() {
  changed_ = mustSave_ = true;
  OpenScript& script = *state_.script;
  const std::size_t number = nextLine(scriptLines_, script.line);
  if (script.goal && isAtGoal(number)) {
    script.goal.reset();
    script.state =
        number > scriptLines_.size() ? OpenScript::State::finished : OpenScript::State::ready;
    return;
  }
  if (number > scriptLines_.size()) {
    script.state = OpenScript::State::finished;
    return;
  }
  const std::string text = script.remainder.empty() ? scriptLines_[number - 1] : script.remainder;
  script.remainder.clear();
  const auto end = endOfAdvance(text);
  const bool isPast = script.leftAt && end && *end < session_.phone.clock.uptime();
  playScriptLineAt(number, isPast ? "# let pass by hand" : text);
  if (session_.state != HostState::off)
    script.end = std::max(script.end, session_.phone.clock.uptime());
}

void ServedPhone::playScriptLineAt(std::size_t number, const std::string& text) {
  OpenScript& script = *state_.script;
  // Before it runs: after a line that ends the process, the next one goes on behind it.
  script.line = nextLine(scriptLines_, number + 1);
  session_.expectCrash = [this](const RestartState& state) {
    send({{"checkpoint", restartStateAsJson(state)}});
    send({{"expectsCrash", request_.is_null() ? json() : request_.at("id")}});
  };
  try {
    play(text);
    session_.expectCrash = nullptr;
    if (script.line > scriptLines_.size() && !script.goal)
      script.state = OpenScript::State::finished;
    return;
  } catch (const ScriptParseError& error) {
    script.failure = {number, error.column, error.what()};
  } catch (const ScriptError& error) {
    script.failure = {number, error.column, error.what()};
  }
  session_.expectCrash = nullptr;
  // What has failed on the way to a moment did so before, and somebody went on.
  if (script.goal) return script.failure.reset();
  script.line = number;
  script.state = OpenScript::State::failed;
}

// Before anybody sees this phone.
void ServedPhone::reachGoal() {
  while (state_.script && state_.script->goal) playScriptLine();
}

// Before the line of that number, which may be past the last. Of a line that only lets time pass a
// part is played here.
bool ServedPhone::isAtGoal(std::size_t number) {
  OpenScript& script = *state_.script;
  const OpenScript::Goal goal = *script.goal;
  if (goal.entry) {
    if (session_.phone.journal.size() >= *goal.entry) tryAgain(number);
    return number > scriptLines_.size();
  }
  if (goal.line && number < *goal.line) return false;
  if (!goal.uptime || number > scriptLines_.size()) return true;
  const std::string& text = scriptLines_[number - 1];
  const Nanoseconds now = session_.phone.clock.uptime();
  const auto end = endOfAdvance(text);
  if (!end || *end <= *goal.uptime) return goal.line.has_value() || now > *goal.uptime;
  if (*goal.uptime > now) play(advanceLine(*goal.uptime));
  script.remainder = advanceLine(*end);
  return true;
}

// The line before has written what this phone was to come just before.
void ServedPhone::tryAgain(std::size_t number) {
  std::size_t line = number - 1;
  while (line > 1 && isBlank(scriptLines_[line - 1])) --line;
  OpenScript::Goal goal{line, std::nullopt, std::nullopt};
  if (isAdvance(scriptLines_[line - 1])) {
    session_.phone.journal.visit(*state_.script->goal->entry - 1, [&](const JournalEntry& entry) {
      goal.uptime = std::max<Nanoseconds>(entry.time - 1, 0);
      return false;
    });
  }
  ServeState next = serveStateFrom(job_.serve);
  next.script->goal = goal;
  stopWatching();
  send({{"again", asJson(next)}});
  _exit(0);
}

// The uptime to which it lets time pass; nothing when it does anything else, or is wrong.
std::optional<Nanoseconds> ServedPhone::endOfAdvance(const std::string& text) const {
  if (!isAdvance(text) || session_.state == HostState::off) return std::nullopt;
  try {
    const ScriptLine line = parseScriptLine(text, 1);
    Arguments words({line.words.begin() + 1, line.words.end()}, line.endColumn);
    const Nanoseconds now = session_.phone.clock.uptime();
    const Nanoseconds end = line.words.front().text == "advance"
                                ? deadline(now, words.duration("a duration"))
                                : nanoseconds(words.number("seconds"));
    return words.atEnd() && end <= latestUptime ? std::optional(end) : std::nullopt;
  } catch (const ScriptError&) {
    return std::nullopt;
  }
}

// What is done now is none of the script's.
void ServedPhone::leaveScript() {
  if (!state_.script || state_.script->leftAt) return;
  state_.script->leftAt = session_.phone.clock.uptime();
  state_.script->leftEntries = session_.phone.journal.size();
}

bool ServedPhone::isScriptRunning() const {
  return state_.script && state_.script->state == OpenScript::State::running;
}

json ServedPhone::closeScript() {
  state_.script.reset();
  mustSave_ = true;
  return nullptr;
}

json ServedPhone::scriptPart() const {
  return state_.script ? overview(*state_.script) : json();
}

json ServedPhone::script() const {
  if (!state_.script) return nullptr;
  json whole = overview(*state_.script);
  whole["text"] = state_.script->text;
  return whole;
}

}  // namespace sim
