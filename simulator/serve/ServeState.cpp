#include "simulator/serve/ServeState.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "simulator/foundation/Unicode.h"

namespace sim {

using nlohmann::json;

// Here, where the library looks for it.
NLOHMANN_JSON_SERIALIZE_ENUM(OpenScript::State, {{OpenScript::State::ready, "ready"},
                                                 {OpenScript::State::running, "running"},
                                                 {OpenScript::State::finished, "finished"},
                                                 {OpenScript::State::failed, "failed"}})

namespace {

template <class T>
json orNull(const std::optional<T>& value) {
  return value ? json(*value) : json();
}

template <class T>
std::optional<T> optionalFrom(const json& saved) {
  return saved.is_null() ? std::nullopt : std::optional(saved.get<T>());
}

json asJson(const std::optional<OpenScript::Goal>& goal) {
  if (!goal) return nullptr;
  return {orNull(goal->line), orNull(goal->uptime), orNull(goal->entry)};
}

std::optional<OpenScript::Goal> goalFrom(const json& saved) {
  if (saved.is_null()) return std::nullopt;
  return OpenScript::Goal{optionalFrom<std::size_t>(saved.at(0)),
                          optionalFrom<Nanoseconds>(saved.at(1)),
                          optionalFrom<std::size_t>(saved.at(2))};
}

json asJson(const std::optional<OpenScript>& script) {
  if (!script) return nullptr;
  json saved = overview(*script);
  saved["text"] = script->text;
  saved["remainder"] = script->remainder;
  saved["goal"] = asJson(script->goal);
  saved["end"] = script->end;
  saved["leftAt"] = orNull(script->leftAt);
  saved["leftEntries"] = script->leftEntries;
  return saved;
}

std::optional<OpenScript> scriptFrom(const json& saved) {
  if (saved.is_null()) return std::nullopt;
  OpenScript script;
  saved.at("name").get_to(script.name);
  saved.at("text").get_to(script.text);
  saved.at("line").get_to(script.line);
  script.state = saved.at("state").get<OpenScript::State>();
  if (const json& failure = saved.at("error"); !failure.is_null())
    script.failure = {failure.at("line").get<std::size_t>(),
                      failure.at("column").get<std::size_t>(),
                      failure.at("error").get<std::string>()};
  saved.at("remainder").get_to(script.remainder);
  script.goal = goalFrom(saved.at("goal"));
  saved.at("end").get_to(script.end);
  script.leftAt = optionalFrom<Nanoseconds>(saved.at("leftAt"));
  saved.at("leftEntries").get_to(script.leftEntries);
  return script;
}

}  // namespace

std::vector<std::string> linesOf(std::string_view text) {
  text = unicode::withoutByteOrderMark(text);
  std::vector<std::string> lines;
  while (!text.empty()) {
    std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines.emplace_back(line);
  }
  return lines;
}

json overview(const OpenScript& script) {
  json failure;
  if (script.failure)
    failure = {{"line", script.failure->line},
               {"column", script.failure->column},
               {"error", script.failure->text}};
  return {{"name", script.name},
          {"line", script.line},
          {"state", json(script.state)},
          {"end", seconds(script.end)},
          {"error", std::move(failure)}};
}

json asJson(const std::vector<Picture>& pictures) {
  json all = json::array();
  for (const Picture& each : pictures) all.push_back({{"name", each.name}, {"n", each.number}});
  return all;
}

json asJson(const ServeState& state) {
  return {{"speed", state.speed},
          {"paused", state.paused},
          {"script", asJson(state.script)},
          {"pictures", asJson(state.pictures)}};
}

ServeState serveStateFrom(const json& saved) {
  ServeState state;
  saved.at("speed").get_to(state.speed);
  saved.at("paused").get_to(state.paused);
  state.script = scriptFrom(saved.at("script"));
  for (const json& each : saved.at("pictures"))
    state.pictures.push_back({each.at("name").get<std::string>(), each.at("n").get<long>()});
  return state;
}

}  // namespace sim
