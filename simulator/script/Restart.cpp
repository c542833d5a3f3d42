#include "simulator/script/Restart.h"

#include <cstdio>
#include <cstdlib>

namespace sim {

RestartState recorded(const Session& session, const std::string& howItEnds) {
  const Phone& phone = session.phone;
  RestartState state;
  state.lineNumber = session.lineNumber;
  state.uptime = phone.clock.uptime();
  state.wallAtZero = phone.clock.wallAtZero();
  state.survivors = phone.saveSurvivors().dump();
  state.journalStart = session.journalStart;
  state.killPoints = session.killPoints;
  state.killTexts = session.killTexts;
  state.variables = session.variables.saved(howItEnds);
  state.functions = session.functions.all();
  state.advanceUntil = session.advanceUntil;
  return state;
}

void endHostProcess(HostEnd how, std::optional<Nanoseconds> relaunchAt) {
  Session& session = Session::current();
  RestartState state = recorded(
      session, (how == HostEnd::respring ? "in the respring at " : "as the host died at ") +
                   session.place());
  state.relaunchAt = relaunchAt;
  state.failure = session.expectsOtherEnd;
  std::fflush(nullptr);
  if (session.handOver) session.handOver(state);
  std::fputs("nobody goes on with a host that ends\n", stderr);
  std::abort();
}

void restoreSession(Session& session, const RestartState& state) {
  Phone& phone = session.phone;
  session.state = HostState::dead;
  session.lineNumber = state.lineNumber;
  phone.clock.restore(state.uptime, state.wallAtZero);
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
