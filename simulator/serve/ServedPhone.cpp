// The phone's life: how it begins, how it goes on, how its time passes.
#include "simulator/serve/ServedPhone.h"

#include <unistd.h>

#include <algorithm>
#include <ostream>

#include "simulator/host/CrashHandler.h"
#include "simulator/runtime/ShownAddresses.h"
#include "simulator/script/Interrupted.h"
#include "simulator/script/Restart.h"
#include "simulator/script/ScriptFiles.h"
#include "simulator/serve/Subscribers.h"

namespace sim {

using nlohmann::json;
using std::chrono::steady_clock;

namespace {

// As often as a screen shows a new picture.
constexpr std::chrono::microseconds frame{16'667};
// So long the phone may run on when it is behind, before it looks at what people want.
constexpr std::chrono::milliseconds slice{8};

SessionOptions optionsOf(const PhoneJob& job) {
  SessionOptions options;
  options.script = "the served phone";
  options.root = job.root;
  options.extensions = job.extensions;
  options.folder = job.folder;
  options.quiet = true;
  options.isServed = true;
  return options;
}

// What a line may have changed that the rest of the journal depends on, as far as it can be seen.
struct Traces {
  std::size_t lines, commands, addresses;
  Nanoseconds uptime;
  bool operator==(const Traces&) const = default;
};

Traces tracesIn(const Session& session) {
  return {session.phone.journal.size(), session.commandsDone, runtime::shownAddressCount(),
          session.phone.clock.uptime()};
}

// Does not change anything by itself.
bool isLook(const std::string& command) {
  return command == "get" || command == "tree" || command == "expect-last";
}

bool isPlaylist(const std::string& line) {
  return line.starts_with("playlist");
}

}  // namespace

ServedPhone::ServedPhone(Session& session, const CommandTable& commands, HostEnds& ends,
                         const MusicLibrary& library, const Json& job)
    : session_(session),
      table_(commands),
      supervisor_(ends.supervisor),
      library_(library),
      job_(phoneJobFrom(job)),
      state_(serveStateFrom(job_.serve)),
      player_(library),
      report_(session.phone.journal) {
  session_.choose(optionsOf(job_));
  watchForCrashes(ends.report, session_);
  scriptFiles().whenWritten = [this](const std::string& name) { notePicture(name); };
  session_.phone.survives("serve", {[this] { return asJson(state_); },
                                    [this](const json& saved) { state_ = serveStateFrom(saved); }});
  session_.interruptionHook = [this] { progress(); };
  session_.handOver = [this](const RestartState& state) {
    stopWatching();
    send({{"restart", restartStateAsJson(state)},
          {"request", request_.is_null() ? json() : request_.at("id")},
          {"uptime", seconds(session_.phone.clock.uptime())},
          {"ran", ran_ + 1}});
    _exit(0);
  };
  addParts();
}

std::vector<std::string> ServedPhone::firstLines() const {
  if (state_.script) return {};
  std::vector<std::string> lines = job_.settings;
  lines.insert(lines.end(), job_.setup.begin(), job_.setup.end());
  const std::string music = library_.playlistLine();
  if (!music.empty() && std::none_of(lines.begin(), lines.end(), isPlaylist)) {
    lines.push_back(music);
    lines.emplace_back("repeat-all YES");  // music that ends by itself would need no timer
  }
  // A phone comes up on its lock screen.
  for (const char* line : {"boot", "lock"}) lines.emplace_back(line);
  return lines;
}

bool ServedPhone::begin() {
  interpreter_.emplace(session_, table_, std::vector<ScriptLine>());
  interpreter_->play();
  const auto lines = firstLines();
  for (std::size_t index = 0; index < lines.size(); ++index) {
    linesPlayed_ = long(index);
    try {
      play(lines[index]);
      continue;
    } catch (const ScriptParseError& error) {
      // Some mistakes show only at `boot`.
      send({{"failed", error.what()}, {"index", error.line - 1}, {"column", error.column}});
    } catch (const ScriptError& error) {
      send({{"failed", error.what()}, {"index", index}, {"column", error.column}});
    }
    return false;
  }
  return true;
}

void ServedPhone::resume() {
  // What kind of phone it is, is said by the lines before its boot.
  std::vector<ScriptLine> lines;
  for (const std::string& line : job_.done)
    lines.push_back(parseScriptLine(line, lines.size() + 1));
  const RestartState saved = restartStateFromJson(job_.state);
  linesPlayed_ = long(saved.lineNumber);
  interpreter_.emplace(session_, table_, std::move(lines));
  interpreter_->resume(saved);
  // A script says itself when the phone is locked, until somebody else goes on with the phone.
  const bool isOfScript = state_.script && !state_.script->leftAt;
  if (!isOfScript && session_.state == HostState::running) play("lock");
}

void ServedPhone::rebase() {
  pace_.rebase(session_.phone.clock.uptime(), steady_clock::now());
  report_.demand("clock");
}

void ServedPhone::run() {
  if (job_.state.is_null()) {
    if (!begin()) return;
  } else {
    resume();
  }
  if (state_.script) scriptLines_ = linesOf(state_.script->text);
  reachGoal();
  pace_.setSpeed(state_.speed, steady_clock::now());
  pace_.setPaused(state_.paused, steady_clock::now());
  rebase();
  saveState(steady_clock::now());
  send({{"ready", true}});
  for (;;) {
    const bool isBehind = !catchUp();
    receive();
    answerNext();
    if (isScriptRunning()) playScriptLine();
    const Moment now = steady_clock::now();
    tellSubscribers(now);
    saveState(now);
    if (!isBehind && !isScriptRunning() && requests_.empty()) supervisor_.waitUntil(nextMoment());
  }
}

// False when there is more to do.
bool ServedPhone::catchUp() {
  if (session_.state == HostState::off) return true;
  const Moment start = steady_clock::now();
  const Nanoseconds target = pace_.uptimeAt(start);
  if (target > session_.phone.clock.uptime()) leaveScript();
  MainQueue& queue = session_.phone.queue;
  for (auto due = queue.nextDue(); due && *due <= target; due = queue.nextDue()) {
    queue.runUntil(*due);
    changed_ = true;
    if (steady_clock::now() > start + slice) return false;
  }
  queue.runUntil(target);
  return true;
}

std::optional<ServedPhone::Moment> ServedPhone::nextMoment() const {
  std::optional<Moment> next;
  const auto due = session_.phone.queue.nextDue();
  if (due && session_.state != HostState::off) next = pace_.momentOf(*due);
  const bool isAnimating = report_.isAnimating() && !pace_.isPaused();
  if (!hasSubscribers_ || (!changed_ && !isAnimating)) return next;
  return next ? std::min(*next, told_ + frame) : told_ + frame;
}

void ServedPhone::tellSubscribers(Moment now) {
  if (!hasSubscribers_ || now < told_ + frame) return;
  if (!changed_ && !report_.isAnimating()) return;
  const objc::AutoreleasePool pool;
  report_.tell([this](const std::string& event, const json& data) {
    send({{"event", event}}, eventText(event, data));
  });
  changed_ = false;
  told_ = now;
}

void ServedPhone::play(const std::string& text) {
  const ScriptLine line = parseScriptLine(text, std::size_t(linesPlayed_) + 1);
  if (line.words.empty()) return;
  ++linesPlayed_;
  const Clock& clock = session_.phone.clock;
  const Nanoseconds before = clock.uptime();
  const double wallBefore = clock.wallAtZero();
  const bool wasOff = session_.state == HostState::off;
  Traces tracesBefore = tracesIn(session_);
  const auto end = [&](const std::vector<std::string>& lines) {
    send({{"instead", lines}, {"uptime", clock.uptime()}});
  };
  send({{"begun", text}, {"uptime", before}});
  changed_ = mustSave_ = true;
  progressed_ = steady_clock::now();
  try {
    interpreter_->perform(line);
  } catch (const Interrupted& error) {
    end(error.lines);
    rebase();
    throw;
  } catch (...) {
    if (tracesIn(session_) == tracesBefore)
      send({{"forget", true}});
    else
      end({"expect-refused " + text});
    if (clock.uptime() != before) rebase();
    throw;
  }
  ++tracesBefore.commands;
  if (isLook(line.words.front().text) && tracesIn(session_) == tracesBefore)
    send({{"forget", true}});
  else
    send({{"done", true}, {"uptime", clock.uptime()}});
  if (wasOff || clock.uptime() != before) rebase();
  if (clock.wallAtZero() != wallBefore) report_.demand("clock");
}

void ServedPhone::notePicture(const std::string& name) {
  auto& all = state_.pictures;
  long number = 1;
  for (const Picture& each : all) number = std::max(number, each.number + 1);
  const auto known =
      std::find_if(all.begin(), all.end(), [&](const Picture& each) { return each.name == name; });
  if (known == all.end())
    all.push_back({name, number});
  else
    known->number = number;
}

}  // namespace sim
