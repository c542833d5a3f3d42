// What pages may ask of the phone.
#include <iostream>
#include <sstream>

#include "simulator/script/commands/HostCommands.h"
#include "simulator/script/values/Target.h"
#include "simulator/serve/RequestError.h"
#include "simulator/serve/ServedPhone.h"

namespace sim {

using nlohmann::json;
using std::chrono::steady_clock;

namespace {

// What commands print, as long as this lives.
class PrintedText {
 public:
  PrintedText() : usual_(std::cout.rdbuf(text_.rdbuf())) {}
  ~PrintedText() { std::cout.rdbuf(usual_); }
  PrintedText(const PrintedText&) = delete;
  PrintedText& operator=(const PrintedText&) = delete;

  std::string take() const { return text_.str(); }

 private:
  std::ostringstream text_;
  std::streambuf* usual_;
};

const char* nameOf(Stage stage) {
  switch (stage) {
    case Stage::setup:
      return "setup";
    case Stage::running:
      return "running";
    case Stage::booted:
      return "booted";
    case Stage::any:
      return "any";
  }
  return "any";
}

Value valueAt(const char* target) {
  return evaluateTarget(Word{target, false, 1});
}

}  // namespace

json ServedPhone::command(const std::vector<std::string>& lines) {
  catchUp();
  const PrintedText printed;
  const auto refuse = [this](const std::exception& error, std::size_t column) {
    return RequestError(400, error.what(), {{"line", ran_ + 1}, {"column", column}, {"ran", ran_}});
  };
  ran_ = 0;
  for (const std::string& line : lines) {
    try {
      play(line);
    } catch (const ScriptParseError& error) {
      throw refuse(error, error.column);
    } catch (const ScriptError& error) {
      throw refuse(error, error.column);
    }
    ++ran_;
  }
  return {
      {"ok", true}, {"uptime", seconds(session_.phone.clock.uptime())}, {"output", printed.take()}};
}

json ServedPhone::commands() const {
  json all = json::array();
  for (const auto& [name, command] : table_.all())
    all.push_back({{"name", name},
                   {"usage", command.usage},
                   {"example", command.example},
                   {"help", command.help},
                   {"stage", nameOf(command.stage)}});
  return all;
}

json ServedPhone::changeTime(const TimeChange& change) {
  catchUp();
  // Where to is found out first: a wrong wish changes nothing.
  const Nanoseconds uptime = destination(change);
  if (uptime > session_.phone.clock.uptime()) jumpTo(uptime);
  const Moment now = steady_clock::now();
  if (change.speed) pace_.setSpeed(*change.speed, now);
  if (change.paused) pace_.setPaused(*change.paused, now);
  state_.speed = pace_.speed();
  state_.paused = pace_.isPaused();
  report_.demand("clock");
  return clockPart();
}

Nanoseconds ServedPhone::destination(const TimeChange& change) const {
  const Nanoseconds now = session_.phone.clock.uptime();
  const bool jumps = change.step || change.advance || change.to || change.beforeEnd;
  if (!jumps) return now;
  if (session_.state == HostState::off) throw RequestError(409, "time passes only after boot");
  if (change.advance) return now + nanoseconds(*change.advance);
  if (change.to) {
    if (nanoseconds(*change.to) < now)
      throw RequestError(409, "time only moves forward: it is " + secondsText(now) + " already");
    return nanoseconds(*change.to);
  }
  if (change.step) {
    const auto due = session_.phone.queue.nextDue();
    if (!due) throw RequestError(409, "nothing is due");
    return *due;
  }
  const objc::AutoreleasePool pool;
  try {
    if (valueAt("Dozewell2Manager.sharedInstance.timerModeIsRunning").boolean() == true) {
      const auto left = valueAt("Dozewell2Manager.sharedInstance.getTimerRemainingTime").number();
      return now + nanoseconds(std::max(double(left.value_or(0)) - *change.beforeEnd, 0.0));
    }
  } catch (const ScriptError&) {
    // A phone without the extension, or a dead one: there is no timer.
  }
  throw RequestError(409, "no timer runs that ends at a certain time");
}

void ServedPhone::jumpTo(Nanoseconds uptime) {
  ran_ = 0;
  advanceTo(uptime);
  setOut();
}

json ServedPhone::makeAnew(const std::vector<std::string>& setup, bool keepsSettings) {
  ServeState fresh = state_;
  fresh.setup = setup;
  if (!keepsSettings)
    fresh.settings.clear();
  else if (session_.state == HostState::running)
    fresh.settings = settings_.changedLines();
  fresh.script.reset();
  leaveForFreshPhone(std::move(fresh));
  return {};
}

json ServedPhone::chooseSound(const std::string& page, Sound how) {
  std::string& owner = state_.audioPage;
  if (how == Sound::release) {
    if (owner == page) owner.clear();
  } else if (how == Sound::take || owner.empty() || !watchers_.has(owner)) {
    owner = page;
  }
  return audioPart();
}

json ServedPhone::journal() const {
  json entries = json::array();
  for (const JournalEntry& entry : session_.phone.journal.entries())
    entries.push_back(
        {{"n", entries.size() + 1}, {"time", seconds(entry.time)}, {"text", entry.text}});
  return entries;
}

std::string ServedPhone::recording() const {
  return state_.recording.asScript(session_.phone.clock.uptime());
}

void ServedPhone::watch(const Watchers::Watcher& watcher) {
  const objc::AutoreleasePool pool;
  report_.tell(watchers_);
  json whole = report_.snapshot();
  whole["epoch"] = state_.epoch + '-' + std::to_string(state_.restarts);
  whole["page"] = watcher->page();
  watcher->startOver(eventText("snapshot", whole));
  watchers_.add(watcher);
}

void ServedPhone::unwatch(const Watchers::Watcher& watcher) {
  watchers_.remove(watcher);
  if (!watchers_.has(watcher->page()) && state_.audioPage == watcher->page())
    state_.audioPage.clear();
}

}  // namespace sim
