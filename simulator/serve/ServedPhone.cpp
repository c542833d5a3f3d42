// The phone's life: how it begins, how it goes on, how its time passes.
#include "simulator/serve/ServedPhone.h"

#include <algorithm>
#include <fstream>

#include "simulator/script/Commands.h"
#include "simulator/script/ScriptFiles.h"
#include "simulator/script/commands/HostCommands.h"
#include "simulator/serve/RequestError.h"

namespace sim {

using nlohmann::json;
using std::chrono::steady_clock;

namespace {

// As often as a screen shows a new picture.
constexpr std::chrono::microseconds frame{16'667};
// So long the phone may run on when it is behind, before it looks at what people want.
constexpr std::chrono::milliseconds slice{8};

SessionOptions optionsOf(const ServeState& state) {
  return {"the served phone", state.root, state.extensions, std::nullopt, state.folder, true};
}

bool isPlaylist(const std::string& line) {
  return line.starts_with("playlist");
}

}  // namespace

ServedPhone::ServedPhone(ServeState state, const MusicLibrary& library, Inbox& inbox, Leave leave)
    : state_(std::move(state)),
      library_(library),
      inbox_(inbox),
      leave_(std::move(leave)),
      session_(optionsOf(state_)),
      table_(allCommands()),
      player_(library),
      report_(session_.phone.journal) {
  session_.relaunch = [this](const std::filesystem::path& file) { leaveInMiddle(file); };
  scriptFiles().whenWritten = [this](const std::string& name) { notePicture(name); };
  session_.phone.survives("serve", {[this] { return asJson(state_); }, [](const json&) {}});
  pace_.setSpeed(state_.speed, steady_clock::now());
  pace_.setPaused(state_.paused, steady_clock::now());
  addParts();
}

ServedPhone::~ServedPhone() {
  watchers_.close();
}

std::vector<std::string> ServedPhone::firstLines() const {
  if (state_.script) return {};
  std::vector<std::string> lines = state_.settings;
  lines.insert(lines.end(), state_.setup.begin(), state_.setup.end());
  const std::string music = library_.playlistLine();
  if (!music.empty() && std::none_of(lines.begin(), lines.end(), isPlaylist)) {
    lines.push_back(music);
    lines.emplace_back("repeat-all YES");  // music that ends by itself would need no timer
  }
  // Whoever holds a phone has unlocked it. The host makes its lock screen when it is first locked,
  // and a timer that is set before is never seen there.
  for (const char* line : {"boot", "lock", "unlock"}) lines.emplace_back(line);
  return lines;
}

void ServedPhone::begin() {
  interpreter_ = std::make_unique<Interpreter>(session_, table_, std::vector<ScriptLine>());
  interpreter_->play();
  for (const std::string& line : firstLines()) play(line);
  setOut();
}

void ServedPhone::goOn(const RestartState& saved) {
  // What kind of phone it is, is said by the lines before its boot.
  std::vector<ScriptLine> lines;
  for (const std::string& line : state_.recording.lines())
    lines.push_back(parseScriptLine(line, lines.size() + 1));
  linesPlayed_ = saved.lineNumber;
  interpreter_ = std::make_unique<Interpreter>(session_, table_, std::move(lines));
  interpreter_->resume(saved);
  setOut();
}

void ServedPhone::setOut() {
  pace_.setOut(session_.phone.clock.uptime(), steady_clock::now());
  report_.demand("clock");
}

void ServedPhone::run() {
  while (!inbox_.isStopped()) {
    const bool isBehind = !catchUp();
    if (inbox_.doNext(*this)) changed_ = true;
    if (isScriptRunning()) playScriptLine();
    tellWatchers(steady_clock::now());
    if (!isBehind && !isScriptRunning()) inbox_.waitUntil(nextMoment());
  }
}

// False when there is more to do.
bool ServedPhone::catchUp() {
  if (session_.state == HostState::off) return true;
  const Moment start = steady_clock::now();
  const Nanoseconds target = pace_.uptimeAt(start);
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
  if (watchers_.isEmpty() || (!changed_ && !isAnimating)) return next;
  return next ? std::min(*next, told_ + frame) : told_ + frame;
}

void ServedPhone::tellWatchers(Moment now) {
  if (watchers_.isEmpty() || now < told_ + frame) return;
  if (!changed_ && !report_.isAnimating()) return;
  const objc::AutoreleasePool pool;
  report_.tell(watchers_);
  changed_ = false;
  told_ = now;
}

void ServedPhone::play(const std::string& text) {
  const ScriptLine line = parseScriptLine(text, std::size_t(linesPlayed_) + 1);
  if (line.words.empty()) return;
  ++linesPlayed_;
  Recording& recording = state_.recording;
  const Nanoseconds before = session_.phone.clock.uptime();
  const double wallBefore = session_.phone.clock.wallAtZero();
  const bool wasOff = session_.state == HostState::off;
  recording.begin(text, before);
  try {
    interpreter_->perform(line);
  } catch (...) {
    recording.forget();
    throw;
  }
  const std::string& name = line.words.front().text;
  if (name != "get" && name != "tree") recording.done(session_.phone.clock.uptime());
  if (wasOff || session_.phone.clock.uptime() != before) setOut();
  if (session_.phone.clock.wallAtZero() != wallBefore) report_.demand("clock");
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

// The process ends where it stands; the journal, the recording and the rest go on in the next.
void ServedPhone::leaveInMiddle(const std::filesystem::path& stateFile) {
  leave_({{"ok", true},
          {"restarts", true},
          {"uptime", seconds(session_.phone.clock.uptime())},
          {"ran", ran_ + 1}},
         stateFile);
}

void ServedPhone::leaveForFreshPhone(ServeState fresh) {
  ++fresh.restarts;
  fresh.recording = {};
  const auto file = state_.root.parent_path() / (state_.root.filename().string() + ".restart.json");
  std::ofstream stream(file, std::ios::binary);
  stream << jsonText({{"fresh", asJson(fresh)}});
  stream.close();
  if (!stream) throw RequestError(500, file.string() + " cannot be written");
  leave_({{"ok", true}, {"restarts", true}, {"uptime", 0}}, file);
}

}  // namespace sim
