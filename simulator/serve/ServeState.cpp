#include "simulator/serve/ServeState.h"

#include <nlohmann/json.hpp>

namespace sim {

using nlohmann::json;

// Here, where the library looks for it.
NLOHMANN_JSON_SERIALIZE_ENUM(OpenScript::State, {{OpenScript::State::ready, "ready"},
                                                 {OpenScript::State::running, "running"},
                                                 {OpenScript::State::finished, "finished"},
                                                 {OpenScript::State::failed, "failed"}})

namespace {

json asJson(const std::optional<OpenScript>& script) {
  if (!script) return nullptr;
  json saved = overview(*script);
  saved["text"] = script->text;
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
  return script;
}

}  // namespace

json overview(const OpenScript& script) {
  json failure;
  if (script.failure)
    failure = {{"line", script.failure->line},
               {"column", script.failure->column},
               {"error", script.failure->text}};
  return {{"name", script.name},
          {"line", script.line},
          {"state", json(script.state)},
          {"error", std::move(failure)}};
}

json asJson(const std::vector<Picture>& pictures) {
  json all = json::array();
  for (const Picture& each : pictures) all.push_back({{"name", each.name}, {"n", each.number}});
  return all;
}

json asJson(const ServeState& state) {
  json extensions = json::array();
  for (const auto& each : state.extensions) extensions.push_back(each.string());
  return {{"listener", state.listener},
          {"root", state.root.string()},
          {"extensions", std::move(extensions)},
          {"package", state.package ? json(state.package->string()) : json()},
          {"music", state.music ? json(state.music->string()) : json()},
          {"web", state.web.string()},
          {"folder", state.folder.string()},
          {"token", state.token},
          {"place", state.place},
          {"epoch", state.epoch},
          {"restarts", state.restarts},
          {"speed", state.speed},
          {"paused", state.paused},
          {"audioPage", state.audioPage},
          {"setup", state.setup},
          {"settings", state.settings},
          {"recording", state.recording.save()},
          {"script", asJson(state.script)},
          {"pictures", asJson(state.pictures)}};
}

ServeState serveStateFrom(const json& saved) {
  ServeState state;
  saved.at("listener").get_to(state.listener);
  state.root = saved.at("root").get<std::string>();
  for (const json& each : saved.at("extensions"))
    state.extensions.emplace_back(each.get<std::string>());
  if (const json& package = saved.at("package"); !package.is_null())
    state.package = package.get<std::string>();
  if (const json& music = saved.at("music"); !music.is_null())
    state.music = music.get<std::string>();
  state.web = saved.at("web").get<std::string>();
  state.folder = saved.at("folder").get<std::string>();
  saved.at("token").get_to(state.token);
  saved.at("place").get_to(state.place);
  saved.at("epoch").get_to(state.epoch);
  saved.at("restarts").get_to(state.restarts);
  saved.at("speed").get_to(state.speed);
  saved.at("paused").get_to(state.paused);
  saved.at("audioPage").get_to(state.audioPage);
  saved.at("setup").get_to(state.setup);
  saved.at("settings").get_to(state.settings);
  state.recording.restore(saved.at("recording"));
  state.script = scriptFrom(saved.at("script"));
  for (const json& each : saved.at("pictures"))
    state.pictures.push_back({each.at("name").get<std::string>(), each.at("n").get<long>()});
  return state;
}

}  // namespace sim
