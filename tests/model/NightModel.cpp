#include "tests/model/NightModel.h"

#include <algorithm>

namespace model {
namespace {

constexpr Nanoseconds longestAdvance = 600 * second;

void change(bool& setting, const std::optional<long>& value, bool otherwise) {
  setting = value ? *value != 0 : otherwise;
}

void change(Settings& settings, const Set& set) {
  const Settings defaults;
  if (set.key == "volumeFadeOutEnabled")
    change(settings.volumeFadeOutEnabled, set.value, defaults.volumeFadeOutEnabled);
  if (set.key == "letTheSongFinishEnabled")
    change(settings.letTheSongFinishEnabled, set.value, defaults.letTheSongFinishEnabled);
  if (set.key == "onTimerStartsCustomVolume")
    change(settings.onTimerStartsCustomVolume, set.value, defaults.onTimerStartsCustomVolume);
  if (set.key == "volumeFadeOutTime")
    settings.volumeFadeOutTime = set.value.value_or(defaults.volumeFadeOutTime);
  if (set.key == "onTimerStartsCustomVolumeValue")
    settings.onTimerStartsCustomVolumeValue =
        set.value.value_or(defaults.onTimerStartsCustomVolumeValue);
}

}  // namespace

NightModel::NightModel(const Rules& rules) {
  phone.rules = rules;
}

struct NightModel::Performer {
  NightModel& night;
  EngineModel& phone = night.phone;

  void operator()(const Start& start) { phone.startTimerWithMode(start.mode, start.value); }
  void operator()(Cancel) { phone.cancelTimer(); }
  void operator()(Reinit) { phone.reinit(); }
  void operator()(Restart) { phone.restartTimerWithLastChosenValue(); }
  void operator()(Play) { phone.play(); }
  void operator()(Pause) { phone.pause(); }
  void operator()(Next) { phone.next(); }
  void operator()(Previous) { phone.previous(); }
  void operator()(const Seek& seek) { phone.seek(seek.position); }
  void operator()(const Playlist& list) { phone.load(list.tracks); }
  void operator()(RepeatOne repeat) { phone.repeatsOne = repeat.repeats; }
  void operator()(Advance advance) { night.advanceTo(phone.uptime + advance.duration); }
  void operator()(const AdvanceToDue& advance) { night.advanceTo(night.target(advance)); }
  void operator()(const Set& set) {
    change(phone.written, set);
    phone.addAfter(0, {0, Event::settingsArrive});
  }
  void operator()(Volume volume) { phone.userSetsVolume(volume.level); }
  void operator()(WallClock clock) { phone.moveWall(clock.distance); }
  void operator()(const StoredDate& date) {
    phone.disk.date = std::nullopt;
    if (date.distance) phone.disk.date = phone.wall() + *date.distance;
    phone.engine.stored.date = phone.disk.date;
  }
  void operator()(const StoredTracks& tracks) {
    phone.engine.stored.tracks = phone.disk.tracks = tracks.count;
  }
  void operator()(Respring respring) {
    phone.disk = phone.engine.stored;
    night.restartAfter(respring.after);
  }
  void operator()(Kill kill) {
    phone.engine.timers.clear();
    phone.moveWall(kill.wallMoves);
    night.restartAfter(kill.after);
  }
};

void NightModel::perform(const Action& action, const std::set<std::size_t>& deaths) {
  phone.lines.clear();
  phone.deaths = deaths;
  advanceUntil_.reset();
  try {
    std::visit(Performer{*this}, action);
    runUntil(phone.uptime);  // what is due now, before anybody can do anything else
  } catch (const HostDied&) {
    comeBack();
  }
}

Nanoseconds NightModel::target(const AdvanceToDue& advance) const {
  const auto times = phone.agenda.dueTimes();
  if (times.empty()) return phone.uptime + second;
  const Nanoseconds due = times[std::size_t(advance.index) % times.size()];
  return std::clamp(due == never ? never : due + advance.offset, phone.uptime,
                    phone.uptime + longestAdvance);
}

void NightModel::advanceTo(Nanoseconds until) {
  advanceUntil_ = until;
  runUntil(until);
}

void NightModel::runUntil(Nanoseconds until) {
  while (const auto entry = phone.agenda.takeDue(until)) {
    phone.uptime = std::max(phone.uptime, entry->due);
    run(*entry);
  }
  phone.uptime = std::max(phone.uptime, until);
}

void NightModel::run(const Entry& entry) {
  switch (entry.event) {
    case Event::trackEnds:
      return phone.trackEnds();
    case Event::mediaAnnounced:
      // While there is no host, nobody hears of it.
      if (phone.hostRuns) phone.addAfter(0, {0, Event::titleRead});
      return;
    case Event::titleRead:
      return phone.readTitle();
    case Event::settingsArrive:
      phone.settings = phone.written;
      return;
    case Event::restore:
      return phone.restoreIfNeeded();
    case Event::timerFires:
      return phone.timerFires(entry.timer);
    case Event::timerDidFire:
      return phone.timerDidFire();
    case Event::fadeStep:
      return phone.fadeStep(entry.decrement);
    case Event::volumeRestored:
      return phone.restoreVolume();
    case Event::indicatorAllowed:
      return phone.hostSuppressesIndicator(false);
  }
}

void NightModel::restartAfter(int seconds) {
  phone.hostRuns = false;
  phone.agenda.clear();
  phone.scheduleTrackEnd();
  runUntil(phone.uptime + seconds * second);
  launch();
}

void NightModel::launch() {
  phone.hostRuns = true;
  phone.engine = {};
  phone.engine.stored = phone.disk;
  phone.settings = phone.written;
  phone.indicatorSuppressed = false;
  phone.addAfter(0, {0, Event::restore});
  runUntil(phone.uptime);
}

void NightModel::comeBack() {
  try {
    restartAfter(0);
    if (advanceUntil_) runUntil(*advanceUntil_);
  } catch (const HostDied&) {
    comeBack();
  }
}

}  // namespace model
