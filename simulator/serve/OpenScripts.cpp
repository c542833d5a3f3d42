// Scripts that pages open, played step by step.
#include "simulator/script/words/Script.h"
#include "simulator/serve/RequestError.h"
#include "simulator/serve/ServedPhone.h"

namespace sim {

using nlohmann::json;

namespace {

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

json ServedPhone::stepScript(std::optional<long> lines) {
  if (!state_.script) throw RequestError(409, "no script is open");
  using State = OpenScript::State;
  if (state_.script->state == State::finished || state_.script->state == State::failed)
    throw RequestError(409, "the script is at its end");
  catchUp();
  state_.script->state = lines ? State::ready : State::running;
  for (long left = lines.value_or(0); left > 0 && state_.script->state == State::ready; --left)
    playScriptLine();
  return scriptPart();
}

void ServedPhone::playScriptLine() {
  changed_ = true;
  OpenScript& script = *state_.script;
  const auto& lines = scriptLines_;
  const std::size_t number = nextLine(lines, script.line);
  if (number > lines.size()) {
    script.state = OpenScript::State::finished;
    return;
  }
  // Before it runs: after a line that ends the process, the next one goes on behind it.
  script.line = nextLine(lines, number + 1);
  try {
    play(lines[number - 1]);
    if (script.line > lines.size()) script.state = OpenScript::State::finished;
    return;
  } catch (const ScriptParseError& error) {
    script.failure = {number, error.column, error.what()};
  } catch (const ScriptError& error) {
    script.failure = {number, error.column, error.what()};
  }
  script.line = number;
  script.state = OpenScript::State::failed;
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
