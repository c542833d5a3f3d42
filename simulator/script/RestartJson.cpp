#include "simulator/script/Restart.h"

namespace sim {

using nlohmann::json;

namespace {

json optional(const std::optional<Nanoseconds>& time) {
  return time ? json(*time) : json();
}

std::optional<Nanoseconds> optional(const json& time) {
  if (time.is_null()) return std::nullopt;
  return time.get<Nanoseconds>();
}

json asJson(const std::vector<KillText>& texts) {
  auto all = json::array();
  for (const KillText& text : texts) all.push_back({text.pattern, text.times});
  return all;
}

std::vector<KillText> killTextsFrom(const json& texts) {
  std::vector<KillText> all;
  for (const json& text : texts)
    all.push_back({text.at(0).get<std::string>(), text.at(1).get<long>()});
  return all;
}

}  // namespace

json restartStateAsJson(const RestartState& state) {
  return {
      {"line", state.lineNumber},
      {"uptime", state.uptime},
      {"wallAtZero", state.wallAtZero},
      {"survivors", json::parse(state.survivors)},
      {"journalStart", state.journalStart},
      {"killPoints", state.killPoints},
      {"killTexts", asJson(state.killTexts)},
      {"variables", state.variables.kept},
      {"lostVariables", state.variables.lost},
      {"functions", state.functions},
      {"relaunchAt", optional(state.relaunchAt)},
      {"advanceUntil", optional(state.advanceUntil)},
      {"failure", state.failure},
  };
}

RestartState restartStateFromJson(const json& from) {
  RestartState state;
  from.at("line").get_to(state.lineNumber);
  from.at("uptime").get_to(state.uptime);
  from.at("wallAtZero").get_to(state.wallAtZero);
  state.survivors = from.at("survivors").dump();
  from.at("journalStart").get_to(state.journalStart);
  from.at("killPoints").get_to(state.killPoints);
  state.killTexts = killTextsFrom(from.at("killTexts"));
  from.at("variables").get_to(state.variables.kept);
  from.at("lostVariables").get_to(state.variables.lost);
  for (const auto& [name, types] : from.at("functions").items())
    state.functions.emplace(name, types.get<std::string>());
  state.relaunchAt = optional(from.at("relaunchAt"));
  state.advanceUntil = optional(from.at("advanceUntil"));
  from.at("failure").get_to(state.failure);
  return state;
}

}  // namespace sim
