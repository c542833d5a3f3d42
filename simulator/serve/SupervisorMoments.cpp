// Back to an earlier moment: everything is done again from the start, which comes to the same.
#include <algorithm>
#include <utility>

#include "simulator/serve/Supervisor.h"

namespace sim {

using nlohmann::json;

namespace {

constexpr const char* nameOfRecording = "recording.phone";

// Whether the script, as it stands, leads to that moment.
bool knows(const OpenScript& script, const OpenScript::Goal& goal, Nanoseconds now) {
  if (!script.leftAt || goal.line) return true;
  if (goal.entry) return *goal.entry <= script.leftEntries;
  return now <= script.end;  // what lies ahead is the script's, too
}

}  // namespace

OpenScript Supervisor::scriptFor(const OpenScript::Goal& goal, const Json& heritage) const {
  const auto now = heritage.at("uptime").get<Nanoseconds>();
  const ServeState before = serveStateFrom(heritage.at("serve"));
  if (!before.script && goal.line) throw RequestError(409, "no script is open");
  OpenScript script;
  if (before.script && knows(*before.script, goal, now)) {
    script.name = before.script->name;
    script.text = before.script->text;
    script.end = std::max(before.script->end, before.script->leftAt.value_or(now));
  } else {
    script.name = nameOfRecording;
    script.text = life_->recording->asScript(now);
    script.end = now;
  }
  script.state = OpenScript::State::running;
  script.goal = goal;
  return script;
}

void Supervisor::goTo(const OpenScript::Goal& goal, const Promise& promise) {
  withHeritage([this, goal, promise](const Json& heritage) {
    try {
      ServeState serve = serveStateFrom(heritage.at("serve"));
      serve.script = scriptFor(goal, heritage);
      serve.paused = true;
      propose(newLife(asJson(serve)), promise);
    } catch (const RequestError&) {
      refuse(promise, std::current_exception());
    }
  });
}

}  // namespace sim
