// The end of a host process and the start of the next, which is another: what it may know of the
// one before is said here, so that nothing survives by accident.
#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "simulator/script/Session.h"

namespace sim {

struct RestartState {
  std::size_t lineNumber = 0;  // of the last command that ran; the script goes on after it
  Nanoseconds uptime = 0;
  double wallAtZero = 0;  // the wall clock at uptime 0, seconds since the reference date
  std::string survivors;  // JSON text: a json value's moves are not taken to be noexcept
  std::size_t journalStart = 0;
  std::set<std::size_t> killPoints;
  std::vector<KillText> killTexts;
  SavedVariables variables;
  std::map<std::string, std::string, std::less<>> functions;
  // When the host comes back by itself, and how long the interrupted `advance` goes on.
  std::optional<Nanoseconds> relaunchAt;
  std::optional<Nanoseconds> advanceUntil;
  std::string failure;  // why the host was not to end now: the script ends there; empty: it was
};

nlohmann::json restartStateAsJson(const RestartState& state);
// Throws nlohmann::json::exception when something is missing or of another type.
RestartState restartStateFromJson(const nlohmann::json& from);

// What a host that came after this one would have to know.
RestartState recorded(const Session& session, const std::string& howItEnds);

enum class HostEnd { respring, death };

// The host ends now: nothing but the phone's files, its other processes and the script's own
// records remain. Comes back by itself at `relaunchAt`, or when the script says so.
[[noreturn]] void endHostProcess(HostEnd how, std::optional<Nanoseconds> relaunchAt);

// Puts a session that has just been made into the recorded state, up to the phone's classes and
// other processes; the host is dead.
void restoreSession(Session& session, const RestartState& state);

}  // namespace sim
