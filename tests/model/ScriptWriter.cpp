#include "tests/model/ScriptWriter.h"

#include <algorithm>
#include <map>

#include "simulator/machine/Journal.h"
#include "tests/model/CommandText.h"

namespace model {
namespace {

// A fade that never ends would fill the night with its steps.
constexpr std::size_t mostLines = 1500;
constexpr std::size_t mostLinesInOrder = 60;

// What the model knows of in the journal; other lines are other people's business.
constexpr const char* kinds[] = {
    "-[PCSimpleTimer *",    "post \"Dozewell*", "-[NSUserDefaults *", "-[SBMediaController *",
    "-[SBVolumeControl *",  "HUD volume *",     "player *",           "user volume *",
    "log \"performSpecial*"};

std::string engine(const std::string& key) {
  return "expect Dozewell2Manager.sharedInstance." + key + ' ';
}

std::string quotedOrNil(const std::optional<std::string>& text) {
  return text ? sim::quoted(*text) : "nil";
}

}  // namespace

std::string ScriptWriter::write(const Night& night) {
  script_ << beginning;
  model_.perform(Set{"volumeFadeOutTime", 1, false}, {});
  model_.perform(Playlist{{{"A", 30 * second},
                           {"B", 45 * second + second / 2},
                           {"B", 20 * second},
                           {"C", 7 * second}}},
                 {});
  std::size_t lines = 0;
  for (const Command& command : night) {
    writeCommand(command);
    lines += model_.phone.lines.size();
    if (lines > mostLines) break;
  }
  return script_.str();
}

void ScriptWriter::writeCommand(const Command& command) {
  const std::string text = commandText(command.action, model_);
  if (text.empty()) return;
  const auto deaths = choose(command);
  script_ << "\nclear-journal\n";
  NightModel future = model_;
  future.perform(command.action, deaths);
  writeDeaths(deaths, future.phone.lines);
  model_ = std::move(future);
  script_ << text;
  expectLines(model_.phone.lines);
  expectState();
  expectStored();
}

// Each death changes what is written after it, so that the next is looked for in another future.
std::set<std::size_t> ScriptWriter::choose(const Command& command) const {
  std::set<std::size_t> deaths;
  for (const int wanted : command.deaths) {
    NightModel future = model_;
    future.perform(command.action, deaths);
    const auto& lines = future.phone.lines;
    std::vector<std::size_t> possible;
    for (std::size_t count = deaths.empty() ? 1 : *deaths.rbegin() + 1; count <= lines.size();
         ++count) {
      if (lines[count - 1].hostRuns) possible.push_back(count);
    }
    if (possible.empty()) break;
    deaths.insert(possible[std::size_t(wanted) % possible.size()]);
  }
  return deaths;
}

void ScriptWriter::writeDeaths(const std::set<std::size_t>& deaths,
                               const std::vector<Line>& lines) {
  for (const std::size_t count : deaths) {
    const std::string& text = lines[count - 1].text;
    const auto end = lines.begin() + std::ptrdiff_t(count);
    const auto times = std::count_if(lines.begin(), end, [&text](const Line& line) {
      return line.hostRuns && line.text == text;
    });
    script_ << "kill-at " << sim::quoted(text) << " times " << times << '\n';
  }
}

void ScriptWriter::expectLines(const std::vector<Line>& lines) {
  std::map<std::pair<Nanoseconds, std::string>, int> counts;
  for (const Line& line : lines) ++counts[{line.time, line.text}];
  for (const auto& [line, count] : counts) {
    script_ << "expect-journal " << sim::quoted(line.second) << " at " << secondsText(line.first)
            << " within 0 times " << count << '\n';
  }
  for (const char* kind : kinds) {
    const std::string prefix(kind, std::string_view(kind).size() - 1);
    const auto count = std::count_if(lines.begin(), lines.end(), [&prefix](const Line& line) {
      return line.text.starts_with(prefix);
    });
    script_ << "expect-journal " << sim::quoted(kind) << " times " << count << '\n';
  }
  if (lines.size() < 2 || lines.size() > mostLinesInOrder) return;
  script_ << "expect-journal-order";
  for (const Line& line : lines) script_ << ' ' << sim::quoted(line.text);
  script_ << '\n';
}

void ScriptWriter::expectState() {
  const EngineModel& phone = model_.phone;
  const EngineState& state = phone.engine;
  const auto yesOrNo = [](bool value) { return value ? "YES\n" : "NO\n"; };
  script_ << engine("timerModeIsRunning") << yesOrNo(state.timerModeIsRunning)
          << engine("nbSongsModeIsRunning") << yesOrNo(state.nbSongsModeIsRunning)
          << engine("isRunning") << yesOrNo(state.timerModeIsRunning || state.nbSongsModeIsRunning)
          << engine("shouldPauseMusicAtTheEndOfThisTrack")
          << yesOrNo(state.shouldPauseMusicAtTheEndOfThisTrack) << engine("nbSongsToPlayBeforeStop")
          << state.nbSongsToPlayBeforeStop << '\n'
          << engine("nbSongsPlayed") << state.nbSongsPlayed << '\n'
          << engine("lastSongTitleName") << quotedOrNil(state.lastSongTitleName) << '\n'
          << engine("lastChosenNbSeconds") << state.lastChosenNbSeconds << '\n'
          << engine("lastChosenNbSongsSelected") << state.lastChosenNbSongsSelected << '\n'
          << engine("getTimerRemainingTime") << exact(phone.remainingTime()) << " within 1e-6\n"
          << "expect SpecialTasksHelper.getInstance.volumeBeforeFadeOut "
          << exact(state.volumeBeforeFadeOut) << " within 1e-12\n"
          << "expect-volume " << exact(phone.volume) << "\nexpect-playing "
          << yesOrNo(phone.playing) << "expect-track ";
  const auto title = phone.track ? phone.tracks[*phone.track].title : std::nullopt;
  script_ << (title ? sim::quoted(*title) : "none") << '\n';
}

void ScriptWriter::expectStored() {
  const Persisted& stored = model_.phone.engine.stored;
  const std::string ask = " NSUserDefaults.standardUserDefaults objectForKey: ";
  const std::string date = "\"com.corvane.dozewell2.persistedTimerDate\"\n";
  const std::string tracks = "\"com.corvane.dozewell2.persistedNbTracksLeft\"\n";
  if (stored.date)
    script_ << "let date" << ask << date << "expect $date.timeIntervalSinceReferenceDate "
            << exact(*stored.date) << " within 1e-6\n";
  else
    script_ << "send" << ask << date << "expect-last nil\n";
  script_ << "send" << ask << tracks << "expect-last "
          << (stored.tracks ? std::to_string(*stored.tracks) : "nil") << '\n';
}

}  // namespace model
