#include "simulator/script/Restart.h"

namespace sim {

using nlohmann::json;

namespace {

std::vector<std::string> texts(const std::vector<std::filesystem::path>& paths) {
  std::vector<std::string> all;
  all.reserve(paths.size());
  for (const auto& path : paths) all.push_back(path.string());
  return all;
}

json optional(const std::optional<Nanoseconds>& time) {
  return time ? json(*time) : json();
}

std::optional<Nanoseconds> optional(const json& time) {
  if (time.is_null()) return std::nullopt;
  return time.get<Nanoseconds>();
}

json asJson(const std::vector<JournalEntry>& entries) {
  auto all = json::array();
  for (const JournalEntry& entry : entries) all.push_back({entry.time, entry.text});
  return all;
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

std::vector<JournalEntry> journalFrom(const json& entries) {
  std::vector<JournalEntry> all;
  for (const json& entry : entries)
    all.push_back({entry.at(0).get<Nanoseconds>(), entry.at(1).get<std::string>()});
  return all;
}

SessionOptions optionsFrom(const json& from) {
  SessionOptions options;
  options.script = from.at("script").get<std::string>();
  options.root = from.at("root").get<std::string>();
  for (const json& path : from.at("extensions"))
    options.extensions.push_back(path.get<std::string>());
  if (const json& playlist = from.at("playlist"); !playlist.is_null())
    options.playlist = playlist.get<std::string>();
  if (const json& folder = from.at("folder"); !folder.is_null())
    options.folder = folder.get<std::string>();
  options.quiet = from.at("quiet").get<bool>();
  return options;
}

}  // namespace

json restartStateAsJson(const RestartState& state) {
  return {
      {"script", state.options.script.string()},
      {"root", state.options.root.string()},
      {"extensions", texts(state.options.extensions)},
      {"playlist", state.options.playlist ? json(state.options.playlist->string()) : json()},
      {"folder", state.options.folder ? json(state.options.folder->string()) : json()},
      {"quiet", state.options.quiet},
      {"line", state.lineNumber},
      {"uptime", state.uptime},
      {"wallAtZero", state.wallAtZero},
      {"journal", asJson(state.journal)},
      {"survivors", json::parse(state.survivors)},
      {"journalStart", state.journalStart},
      {"killPoints", state.killPoints},
      {"killTexts", asJson(state.killTexts)},
      {"variables", state.variables.kept},
      {"lostVariables", state.variables.lost},
      {"functions", state.functions},
      {"relaunchAt", optional(state.relaunchAt)},
      {"advanceUntil", optional(state.advanceUntil)},
  };
}

RestartState restartStateFromJson(const json& from) {
  RestartState state;
  state.options = optionsFrom(from);
  from.at("line").get_to(state.lineNumber);
  from.at("uptime").get_to(state.uptime);
  from.at("wallAtZero").get_to(state.wallAtZero);
  state.journal = journalFrom(from.at("journal"));
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
  return state;
}

}  // namespace sim
