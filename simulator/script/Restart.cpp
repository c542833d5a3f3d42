#include "simulator/script/Restart.h"

#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>

namespace sim {
namespace {

std::string described(HostEnd how, const Session& session) {
  return (how == HostEnd::respring ? "in the respring at " : "as the host died at ") +
         session.place();
}

RestartState recorded(Session& session, HostEnd how) {
  const Phone& phone = session.phone;
  RestartState state;
  state.options = session.options;
  state.lineNumber = session.lineNumber;
  state.uptime = phone.clock.uptime();
  state.wallAtZero = phone.clock.wallAtZero();
  state.journal = phone.journal.entries();
  state.survivors = phone.saveSurvivors().dump();
  state.journalStart = session.journalStart;
  state.killPoints = session.killPoints;
  state.killTexts = session.killTexts;
  state.variables = session.variables.saved(described(how, session));
  state.functions = session.functions.all();
  state.advanceUntil = session.advanceUntil;
  return state;
}

// Beside the root folder, not inside: the phone's own files are none of ours.
std::filesystem::path stateFile(const std::filesystem::path& root) {
  return root.parent_path() / (root.filename().string() + ".restart.json");
}

[[noreturn]] void stop(const std::string& what) {
  std::fprintf(stderr, "the host cannot be restarted: %s: %s\n", what.c_str(),
               std::strerror(errno));
  std::abort();
}

}  // namespace

void endHostProcess(HostEnd how, std::optional<Nanoseconds> relaunchAt) {
  Session& session = Session::current();
  RestartState state = recorded(session, how);
  state.relaunchAt = relaunchAt;
  const auto file = stateFile(session.phone.root());
  std::ofstream stream(file, std::ios::binary);
  stream << restartStateAsJson(state);
  stream.close();
  if (!stream) stop(file.string());
  std::fflush(nullptr);
  if (session.relaunch) session.relaunch(file);
  execl("/proc/self/exe", "dozewell-simulator", "resume", file.c_str(), nullptr);
  stop("/proc/self/exe");
}

RestartState takeRestartState(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw std::runtime_error(file.string() + ": " + std::strerror(errno));
  const auto json = nlohmann::json::parse(stream);
  std::filesystem::remove(file);
  return restartStateFromJson(json);
}

void restoreSession(Session& session, const RestartState& state) {
  Phone& phone = session.phone;
  session.state = HostState::dead;
  session.lineNumber = state.lineNumber;
  phone.clock.restore(state.uptime, state.wallAtZero);
  phone.journal.restore(state.journal);
  session.journalStart = state.journalStart;
  session.killPoints = state.killPoints;
  session.killTexts = state.killTexts;
  // Should the host die once more as it comes back, the interrupted `advance` still goes on.
  session.advanceUntil = state.advanceUntil;
  for (const auto& [name, types] : state.functions) session.functions.declare(name, types);
  session.host.registerClasses();
  session.variables.restore(state.variables);
  phone.restoreSurvivors(nlohmann::json::parse(state.survivors));
}

}  // namespace sim
