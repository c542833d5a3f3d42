// The sleep timer as it is meant to behave, in plain C++: written from its description, not from
// its code, to be compared with it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tests/model/PhoneModel.h"
#include "tests/model/Rules.h"

namespace model {

struct HostTimer {
  double moment = 0;  // of the wall clock
  bool valid = true;
};

// What dies with the host process.
struct EngineState {
  bool timerModeIsRunning = false;
  bool nbSongsModeIsRunning = false;
  bool shouldPauseMusicAtTheEndOfThisTrack = false;
  long nbSongsToPlayBeforeStop = 0;
  long nbSongsPlayed = 0;
  std::optional<std::string> lastSongTitleName;
  long lastChosenNbSeconds = 0;
  long lastChosenNbSongsSelected = 0;
  double volumeBeforeFadeOut = 0;
  std::vector<HostTimer> timers;           // every one of this process, stale ones too
  std::optional<std::size_t> systemTimer;  // the current one
  Persisted stored;                        // as the process knows it, written or not
};

struct EngineModel : PhoneModel {
  Rules rules;
  EngineState engine;

  void startTimerWithMode(long mode, long value);
  void restartTimerWithLastChosenValue();
  void cancelTimer();
  void reinit();
  double remainingTime() const;

  void restoreIfNeeded();
  void readTitle();
  void moveWall(double distance);
  void timerFires(std::size_t timer);
  void timerDidFire();
  void fadeStep(float decrement);
  void restoreVolume();

 private:
  void startTimerWithTimeInterval(long seconds);
  void startTimerWithNbTracks(long count);
  void handleTrackChanged();
  void end();
  void pauseMusic();
  void fadeOut(int seconds);
  void performStartActions();

  void storeDate(long seconds);
  void storeTracks(long count);
  void removeStored();
  void synchronize();
  template <class Value>
  void remove(std::optional<Value>& stored, const std::string& key);
};

}  // namespace model
