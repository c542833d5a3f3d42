#include "simulator/host/ScriptPlayer.h"

#include <poll.h>
#include <sys/wait.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <iostream>

#include "simulator/host/EndSignals.h"
#include "simulator/machine/Journal.h"

namespace sim {

using nlohmann::json;

namespace {

constexpr double leastProcessorSeconds = 1;

ScriptOutcome outcomeFrom(const json& last, int status) {
  ScriptOutcome outcome;
  last.at("done").get_to(outcome.status);
  outcome.error = last.value("error", "");
  outcome.line = last.value("line", std::size_t(0));
  outcome.column = last.value("column", std::size_t(0));
  // What is found wrong as a process exits, leaks for example, is wrong with the script, too.
  if (outcome.status == 0) outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : 1;
  return outcome;
}

}  // namespace

Zygote& ScriptPlayer::zygoteFor(const std::string& script) {
  const bool hasClasses = suitsRegisteredClasses(script);
  auto& zygote = hasClasses ? withClasses_ : withoutClasses_;
  if (!zygote)
    zygote.emplace(hasClasses ? Zygote::Classes::registered : Zygote::Classes::none, main_);
  return *zygote;
}

void ScriptPlayer::begin(const ScriptJob& beginning) {
  beginning_ = beginning.text;
  begun_.emplace(Zygote::Classes::registered, main_,
                 [&beginning](Session& session, const CommandTable& commands) {
                   playBeginning(session, commands, beginning);
                 });
}

std::optional<Message> ScriptPlayer::lastMessage(HostProcess& host) const {
  std::optional<Message> last;
  std::array<pollfd, 2> awaited{
      {{host.channel().descriptor(), POLLIN, 0}, {endSignals_, POLLIN, 0}}};
  for (;;) {
    if (poll(awaited.data(), awaited.size(), -1) < 0 && errno != EINTR) return last;
    if (awaited[1].revents != 0) throw EndSignal(EndSignals::take(endSignals_));
    if (awaited[0].revents == 0) continue;
    const bool isOpen = host.channel().fill();
    while (auto message = host.channel().next()) last = std::move(message);
    if (!isOpen) return last;
  }
}

ScriptOutcome ScriptPlayer::play(ScriptJob job) {
  const bool isBegun = begun_ && job.text.starts_with(beginning_);
  journal_.clear();
  const bool isLimited = job.processorSeconds > 0;
  for (json state;;) {
    Zygote& zygote = isBegun && state.is_null() ? *begun_ : zygoteFor(job.text);
    HostProcess host(zygote, asJson(job, state), journal_);
    const auto last = lastMessage(host);
    const HostResult result = host.end();
    if (isLimited)
      job.processorSeconds =
          std::max(job.processorSeconds - result.processorSeconds, leastProcessorSeconds);
    if (last && last->head.contains("done")) return outcomeFrom(last->head, result.status);
    if (last && last->head.contains("restart")) {
      state = last->head.at("restart");
      continue;
    }
    journal_.refresh();
    const CrashReport report = reportOf(result.status, result.crash, journal_);
    tell(report, job.options.quiet);
    // Without a word of its own it was killed by somebody else.
    if (!last || !result.crash) {
      ScriptOutcome outcome;
      outcome.status = 1;
      outcome.crash = report;
      return outcome;
    }
    state = last->head.at("checkpoint");
    relaunchAfterCrash(state, report.uptime, result.crash);
  }
}

void ScriptPlayer::tell(const CrashReport& report, bool isQuiet) {
  const JournalEntry entry{report.uptime, journalLine(report)};
  journal_.append(entry);
  if (!isQuiet) std::cout << formatted(entry) << std::endl;
}

}  // namespace sim
