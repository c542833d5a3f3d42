// The engine's state and operations, for the engine's own files alone.
#pragma once

#include "objc/Class.h"
#include "tweak/engine/Dozewell2Manager.h"

// Main thread throughout, but for startTimerWithTimeInterval, which may be called from any.
struct Dozewell2ManagerImplementation : objc::Implementation<Dozewell2ManagerImplementation> {
  bool timerModeIsRunning;
  bool nbSongsModeIsRunning;
  bool isShowingDozewellUI;
  bool shouldPauseMusicAtTheEndOfThisTrack;  // the duration is over, the track is not
  long nbSongsToPlayBeforeStop;
  long nbSongsPlayed;
  objc::Strong<NSString> lastSongTitleName;  // of the track last seen playing; nil: none yet
  objc::Strong<TimerPanel> dozewell2VC;
  objc::Strong<DozewellNowPlayingController> currentNowPlayingVC;
  long lastChosenNbSeconds;        // 0: none yet
  long lastChosenNbSongsSelected;  // 0: none yet

  // Dozewell2Manager.cpp: starting and ending
  static Dozewell2ManagerImplementation& sharedInstance() { return shared(); }
  id init();
  bool isRunning() const { return timerModeIsRunning || nbSongsModeIsRunning; }
  void startTimerWithMode_andValue(long mode, long value);
  void startTimerWithTimeInterval(long seconds);
  void restartTimerWithLastChosenValue();
  void timerDidFire();
  void timerOrNbTracksDidEnd();
  void cancelTimer();
  void reinit();
  double getTimerRemainingTime() const;  // seconds; negative once due, 0 without a timer

  // Dozewell2ManagerTracks.cpp: songs
  void startTimerWithNbTracks(long count);
  void mediaDidChange(objc::Object notification);
  void handleTrackChangedIfNeeded();
  long getTimerRemainingTracks() const;

  // Dozewell2ManagerPersistence.cpp: over a restart of the host
  void persistTimerWithTimeInterval(long seconds);
  void persistTimerWithNbTracks(long count);
  void cancelAllPersistedTimers();
  void restoreDozewellIfNeeded();

  // Dozewell2ManagerCompanions.cpp: whether each of two other extensions of the media module is
  // installed and switched on. The files are read at every call.
  static bool sylphTweakEnabled();
  static bool grupiTweakEnabled();  // and its small music controller is
};
