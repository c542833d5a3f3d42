#include "tests/model/EngineModel.h"

#include <algorithm>
#include <cmath>

namespace model {

void EngineModel::startTimerWithMode(long mode, long value) {
  if (mode == 0) {
    startTimerWithTimeInterval(value);
    storeDate(value);
    engine.lastChosenNbSeconds = value;
  } else if (mode == 1) {
    startTimerWithNbTracks(value);
    storeTracks(value);
    engine.lastChosenNbSongsSelected = value;
  }
  performStartActions();
}

void EngineModel::startTimerWithTimeInterval(long seconds) {
  if (rules.startInvalidatesTheTimerBefore) cancelTimer();
  engine.timerModeIsRunning = true;
  const std::size_t timer = engine.timers.size();
  engine.systemTimer = timer;
  engine.timers.push_back({wall() + double(seconds)});
  record("-[PCSimpleTimer scheduleInRunLoop:]");
  addAfter(toNanoseconds(std::max(double(seconds), 0.0)), {0, Event::timerFires, timer});
  record("post \"DozewellDidStartNotification\"");
}

void EngineModel::startTimerWithNbTracks(long count) {
  engine.nbSongsModeIsRunning = true;
  engine.nbSongsToPlayBeforeStop = count;
  engine.nbSongsPlayed = 0;
  record("post \"DozewellDidStartNotification\"");
}

void EngineModel::restartTimerWithLastChosenValue() {
  if (rules.restartForgetsToWaitForTheTrack) engine.shouldPauseMusicAtTheEndOfThisTrack = false;
  if (engine.timerModeIsRunning && engine.lastChosenNbSeconds != 0) {
    removeStored();
    startTimerWithTimeInterval(engine.lastChosenNbSeconds);
    storeDate(engine.lastChosenNbSeconds);
  } else if (engine.nbSongsModeIsRunning && engine.lastChosenNbSongsSelected != 0) {
    removeStored();
    startTimerWithNbTracks(engine.lastChosenNbSongsSelected);
    storeTracks(engine.lastChosenNbSongsSelected);
  }
}

void EngineModel::timerFires(std::size_t timer) {
  record("-[PCSimpleTimer fire] \"com.corvane.dozewell2\"");
  engine.timers[timer].valid = false;
  addAfter(0, {0, Event::timerDidFire});
}

void EngineModel::timerDidFire() {
  if (settings.letTheSongFinishEnabled)
    engine.shouldPauseMusicAtTheEndOfThisTrack = true;
  else
    end();
}

void EngineModel::end() {
  const bool fades = engine.timerModeIsRunning && settings.volumeFadeOutEnabled &&
                     settings.volumeFadeOutTime > 0 && !engine.shouldPauseMusicAtTheEndOfThisTrack;
  if (fades)
    fadeOut(int(settings.volumeFadeOutTime));
  else
    pauseMusic();
  reinit();
}

void EngineModel::cancelTimer() {
  if (!engine.systemTimer) return;
  const std::size_t timer = *engine.systemTimer;
  if (engine.timers[timer].valid) record("-[PCSimpleTimer invalidate]");
  engine.timers[timer].valid = false;
  agenda.remove(Event::timerFires, timer);
  engine.systemTimer.reset();
}

void EngineModel::reinit() {
  const bool resetsDuration = engine.timerModeIsRunning;
  if (resetsDuration) {
    engine.timerModeIsRunning = false;
    cancelTimer();
    engine.shouldPauseMusicAtTheEndOfThisTrack = false;
  }
  if (engine.nbSongsModeIsRunning && (!resetsDuration || rules.resetClearsBothModes)) {
    engine.nbSongsModeIsRunning = false;
    engine.nbSongsPlayed = 0;
  }
  record("post \"DozewellDidStopNotification\"");
  removeStored();
}

double EngineModel::remainingTime() const {
  if (!engine.systemTimer) return 0;
  return engine.timers[*engine.systemTimer].moment - wall();
}

// The host's timers go by the wall clock; one that goes back by more than a minute fires them.
void EngineModel::moveWall(double distance) {
  PhoneModel::moveWall(distance);
  for (std::size_t timer = 0; timer < engine.timers.size(); ++timer) {
    if (!engine.timers[timer].valid) continue;
    agenda.remove(Event::timerFires, timer);
    const double left = std::round((engine.timers[timer].moment - wall()) * 1e6) / 1e6;
    addAfter(distance < -60 ? 0 : toNanoseconds(std::max(left, 0.0)),
             {0, Event::timerFires, timer});
  }
}

void EngineModel::readTitle() {
  if (!track || !tracks[*track].title) return;
  const std::string& title = *tracks[*track].title;
  if (engine.lastSongTitleName == title && !rules.equalTitlesCount) return;
  engine.lastSongTitleName = title;
  handleTrackChanged();
}

void EngineModel::handleTrackChanged() {
  if (engine.nbSongsModeIsRunning) {
    engine.nbSongsPlayed += 1;
    storeTracks(engine.nbSongsToPlayBeforeStop - engine.nbSongsPlayed);
    if (engine.nbSongsPlayed >= engine.nbSongsToPlayBeforeStop) end();
  }
  if (engine.shouldPauseMusicAtTheEndOfThisTrack) end();
}

void EngineModel::pauseMusic() {
  record("-[SBMediaController pauseForEventSource:0]");
  pause();
}

void EngineModel::fadeOut(int seconds) {
  engine.volumeBeforeFadeOut = volume;
  const double steps = seconds / 0.1;
  fadeStep(float(engine.volumeBeforeFadeOut / steps));
}

void EngineModel::fadeStep(float decrement) {
  if (volume > 0) {
    hostSuppressesIndicator(true);
    hostSetsVolume(double(volume) + double(-decrement));
    addAfter(second / 10, {0, Event::fadeStep, 0, decrement});
  } else {
    pauseMusic();
    addAfter(2 * second, {0, Event::volumeRestored});
  }
}

void EngineModel::restoreVolume() {
  if (!rules.usersVolumeIsKept || volume <= 0) hostSetsVolume(engine.volumeBeforeFadeOut);
  addAfter(3 * second / 10, {0, Event::indicatorAllowed});
}

void EngineModel::performStartActions() {
  record("log \"performSpecialActionsOnTimerStart\"");
  if (!settings.onTimerStartsCustomVolume) return;
  hostSuppressesIndicator(true);
  hostSetsVolume(double(settings.onTimerStartsCustomVolumeValue) / 100.0);
  addAfter(3 * second / 10, {0, Event::indicatorAllowed});
}

void EngineModel::restoreIfNeeded() {
  if (engine.stored.date) {
    const double left = *engine.stored.date - wall();
    if (left > 0) {
      startTimerWithTimeInterval(long(left));
      if (rules.restoreStoresAgain) storeDate(long(left));
    } else if (rules.expiredDateIsRemoved) {
      engine.stored.date.reset();
    }
  } else if (engine.stored.tracks.value_or(0) >= 1) {
    startTimerWithNbTracks(*engine.stored.tracks);
  }
}

void EngineModel::storeDate(long seconds) {
  const double due = wall() + double(seconds);
  engine.stored.date = rules.storedDateIsWhole ? std::floor(due) : due;
  record("-[NSUserDefaults setObject:* forKey:\"com.corvane.dozewell2.persistedTimerDate\"]");
  synchronize();
}

void EngineModel::storeTracks(long count) {
  engine.stored.tracks = count;
  record("-[NSUserDefaults setObject:" + std::to_string(count) +
         " forKey:\"com.corvane.dozewell2.persistedNbTracksLeft\"]");
  synchronize();
}

template <class Value>
void EngineModel::remove(std::optional<Value>& stored, const std::string& key) {
  if (!stored) return;
  stored.reset();
  record("-[NSUserDefaults removeObjectForKey:\"com.corvane.dozewell2." + key + "\"]");
}

void EngineModel::removeStored() {
  remove(engine.stored.date, "persistedTimerDate");
  remove(engine.stored.tracks, "persistedNbTracksLeft");
  synchronize();
}

// On the disk before it is told.
void EngineModel::synchronize() {
  disk = engine.stored;
  record("-[NSUserDefaults synchronize]");
}

}  // namespace model
