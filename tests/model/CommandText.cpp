#include "tests/model/CommandText.h"

#include <array>
#include <cstdio>

#include "simulator/machine/Journal.h"

namespace model {
namespace {

std::string toEngine(const std::string& message) {
  return "send Dozewell2Manager.sharedInstance " + message + '\n';
}

std::string signedSeconds(int distance) {
  return (distance < 0 ? "-" : "+") + std::to_string(std::abs(distance)) + 's';
}

struct Writer {
  const NightModel& now;

  std::string operator()(const Start& start) const {
    return toEngine("startTimerWithMode:andValue: " + std::to_string(start.mode) + ' ' +
                    std::to_string(start.value));
  }
  std::string operator()(Cancel) const { return toEngine("cancelTimer"); }
  std::string operator()(Reinit) const { return toEngine("reinit"); }
  std::string operator()(Restart) const { return toEngine("restartTimerWithLastChosenValue"); }
  std::string operator()(Play) const { return "play\n"; }
  std::string operator()(Pause) const { return "pause\n"; }
  std::string operator()(Next) const { return "next-track\n"; }
  std::string operator()(Previous) const { return "previous-track\n"; }
  std::string operator()(Seek seek) const {
    return now.phone.track ? "seek " + std::to_string(seek.position) + '\n' : "";
  }
  std::string operator()(const Playlist& list) const {
    std::string text = "playlist";
    for (const Track& track : list.tracks) {
      text += ' ' + (track.title ? sim::quoted(*track.title) : "none") + ' ' +
              secondsText(track.length);
    }
    return text + '\n';
  }
  std::string operator()(RepeatOne repeat) const {
    return "repeat-one " + sim::notation(repeat.repeats) + '\n';
  }
  std::string operator()(Advance advance) const {
    return "advance " + secondsText(advance.duration) + "s\n";
  }
  std::string operator()(const AdvanceToDue& advance) const {
    return "advance-to " + secondsText(now.target(advance)) + '\n';
  }
  std::string operator()(const Set& set) const {
    std::string value = "none";
    if (set.value) value = set.isFlag ? sim::notation(*set.value != 0) : std::to_string(*set.value);
    return "set " + set.key + ' ' + value + '\n';
  }
  std::string operator()(Volume volume) const { return "volume " + exact(volume.level) + '\n'; }
  std::string operator()(WallClock clock) const {
    return "wall-clock " + signedSeconds(clock.distance) + '\n';
  }
  std::string operator()(const StoredDate& date) const {
    return "default \"com.corvane.dozewell2.persistedTimerDate\" " +
           (date.distance ? "date " + signedSeconds(*date.distance) : "none") + '\n';
  }
  std::string operator()(const StoredTracks& tracks) const {
    return "default \"com.corvane.dozewell2.persistedNbTracksLeft\" " +
           (tracks.count ? std::to_string(*tracks.count) : "none") + '\n';
  }
  std::string operator()(Respring respring) const {
    return "respring after " + std::to_string(respring.after) + "s\n";
  }
  std::string operator()(Kill kill) const {
    return "kill\nwall-clock " + signedSeconds(kill.wallMoves) + "\nrespring after " +
           std::to_string(kill.after) + "s\n";
  }
};

}  // namespace

std::string commandText(const Action& action, const NightModel& now) {
  return std::visit(Writer{now}, action);
}

std::string secondsText(Nanoseconds duration) {
  std::array<char, 48> text;
  std::snprintf(text.data(), text.size(), "%lld.%09lld", duration / 1'000'000'000LL,
                duration % 1'000'000'000LL);
  return text.data();
}

std::string exact(double value) {
  std::array<char, 48> text;
  std::snprintf(text.data(), text.size(), "%.17g", value);
  return text.data();
}

// RapidCheck prints each command of a night that failed; its moment is not known here.
void showValue(const Command& command, std::ostream& out) {
  out << "action " << command.action.index() << " with " << command.deaths.size() << " deaths";
}

}  // namespace model
