#include "simulator/script/commands/HostCommands.h"

#include "simulator/foundation/NSUserDefaults.h"
#include "simulator/machine/WallClock.h"
#include "simulator/script/Restart.h"
#include "simulator/script/commands/PhoneCommands.h"
#include "simulator/script/names/JournalNames.h"
#include "simulator/script/names/NameChecks.h"
#include "simulator/script/words/Wildcard.h"

namespace sim {
namespace {

void launchHost(Session& session) {
  nameChecks().system.namesAreKnown();
  session.state = HostState::running;
  session.host.launch();
  nameChecks().all.namesAreKnown();
}

// However much falls due on the way, somebody may end it.
void passTime(Nanoseconds uptime) {
  Session& session = Session::current();
  MainQueue& queue = session.phone.queue;
  for (auto due = queue.nextDue(); due && *due <= uptime; due = queue.nextDue()) {
    queue.runUntil(*due);
    session.checkInterruption();
  }
  queue.runUntil(uptime);
}

void boot(Arguments& arguments) {
  arguments.finish();
  Session& session = Session::current();
  session.host.registerClasses();
  launchHost(session);
}

// Before anything changes.
void requireTime(Nanoseconds uptime) {
  if (uptime > latestUptime)
    throw ScriptError(0, "time goes no further than 100 years after the phone's start");
}

void advance(Arguments& arguments) {
  const Nanoseconds duration = arguments.duration("a duration");
  arguments.finish();
  advanceTo(deadline(Session::current().phone.clock.uptime(), duration));
}

void advanceToUptime(Arguments& arguments) {
  const Nanoseconds now = Session::current().phone.clock.uptime();
  const Nanoseconds until = nanoseconds(arguments.number("seconds since the phone's start"));
  arguments.finish();
  if (until < now)
    throw ScriptError(0, "time only moves forward: it is " + notation(seconds(now)) + " already");
  advanceTo(until);
}

void wallClock(Arguments& arguments) {
  const Word& word = arguments.word("+DURATION or -DURATION");
  const char sign = word.quoted || word.text.empty() ? '\0' : word.text[0];
  if (sign != '+' && sign != '-')
    throw ScriptError(word.column, "expected +DURATION or -DURATION, found " + word.text);
  Arguments amount({{word.text.substr(1), false, word.column + 1}}, word.column + 1);
  const double distance = seconds(amount.duration("a duration"));
  arguments.finish();
  moveWallClock(sign == '+' ? distance : -distance);
}

void kill(Arguments& arguments) {
  arguments.finish();
  endHostProcess(HostEnd::death, std::nullopt);
}

void killAtText(Arguments& arguments) {
  const Word line = arguments.word("a journal line");
  requireKnownNames(line);
  KillText text{line.text, 1};
  if (arguments.takeKeyword("times")) text.times = arguments.integer("a number of lines");
  if (text.times < 1) arguments.failHere("expected at least one line");
  arguments.finish();
  Session::current().killTexts.push_back(std::move(text));
}

void killAt(Arguments& arguments) {
  if (const Word* next = arguments.peek(); next != nullptr && next->quoted)
    return killAtText(arguments);
  const long count = arguments.integer("a number of journal lines");
  arguments.finish();
  Session& session = Session::current();
  const auto recorded = long(session.phone.journal.size());
  if (count <= recorded)
    throw ScriptError(0, "expected a number of journal lines above " + std::to_string(recorded) +
                             ", found " + std::to_string(count));
  session.killPoints.insert(std::size_t(count));
}

// Every text counts every line, also one at which another of them ends the host.
bool reachedKillText(Session& session, const std::string& line) {
  for (KillText& text : session.killTexts) text.times -= matchesWildcard(line, text.pattern);
  return std::erase_if(session.killTexts, [](const KillText& text) { return text.times == 0; }) > 0;
}

// An orderly end: what is due runs, and user defaults reach the disk.
void endInOrder(Session& session) {
  session.phone.queue.runDue();
  saveChangedUserDefaults();
}

void respring(Arguments& arguments) {
  Session& session = Session::current();
  Nanoseconds relaunchAt = session.phone.clock.uptime();
  if (arguments.takeKeyword("after"))
    relaunchAt = deadline(relaunchAt, arguments.duration("a duration"));
  arguments.finish();
  requireTime(relaunchAt);
  if (session.state == HostState::off) throw ScriptError(0, "respring belongs after boot");
  if (session.state == HostState::dead) return relaunchHost(relaunchAt);
  endInOrder(session);
  endHostProcess(HostEnd::respring, relaunchAt);
}

}  // namespace

void advanceTo(Nanoseconds uptime) {
  requireTime(uptime);
  Session& session = Session::current();
  session.advanceUntil = uptime;
  try {
    passTime(uptime);
  } catch (...) {
    session.advanceUntil.reset();
    throw;
  }
  session.advanceUntil.reset();
}

void relaunchHost(Nanoseconds uptime) {
  passTime(uptime);
  launchHost(Session::current());
}

void watchKillPoints() {
  Session::current().phone.journal.observe([](const JournalEntry& entry) {
    Session& session = Session::current();
    if (session.state != HostState::running) return;
    const Phone& phone = session.phone;
    const bool dies = session.killPoints.erase(phone.journal.size()) > 0;
    if (reachedKillText(session, entry.text) || dies)
      endHostProcess(HostEnd::death, phone.clock.uptime());
  });
}

void addHostCommands(CommandTable& table) {
  table.add({"boot", Stage::setup, "boot", "boot",
             "Ends the set-up, loads the extension, launches the home screen and runs what is due.",
             boot});
  table.add({"advance", Stage::booted, "advance DURATION", "advance 90s",
             "Lets virtual time pass, with everything that falls due on the way.", advance});
  table.add({"advance-to", Stage::booted, "advance-to SECONDS", "advance-to 2701.5",
             "Lets virtual time pass up to this many seconds since the phone's start.",
             advanceToUptime});
  table.add(
      {"wall-clock", Stage::any, "wall-clock +DURATION|-DURATION", "wall-clock -1h",
       "Moves the wall clock, as a user or the network may. Timers by uptime do not notice; a "
       "PCSimpleTimer fires at its moment of the wall clock, and at once when the clock goes "
       "back by more than a minute.",
       wallClock});
  table.add({"kill", Stage::running, "kill", "kill",
             "The host dies here without an orderly end; `respring` brings it back.", kill});
  table.add({"kill-at", Stage::any, "kill-at N|TEXT [times N]", "kill-at 3",
             "The host will die the moment the journal's N-th line is written, or from now on the "
             "first or N-th line that is TEXT (`*` stands for anything), and be launched again at "
             "once; a running `advance` goes on with the new host.",
             killAt});
  table.add({"respring", Stage::any, "respring [after DURATION]", "respring after 30s",
             "Restarts the host: in order (user defaults are saved) when it runs, or after it "
             "died; of $variables only plain values stay.",
             respring});
}

}  // namespace sim
