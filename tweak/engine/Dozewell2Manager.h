// The sleep timer: at most one at a time, a duration or a number of songs.
#pragma once

#include "objc/Class.h"
#include "platform/MediaControls.h"

// Main thread throughout, but for startTimerWithTimeInterval, which may be called from any.
struct Dozewell2Manager : objc::Implementation<Dozewell2Manager> {
  enum TimerMode : long { durationMode = 0, songCountMode = 1 };

  bool timerModeIsRunning;
  bool nbSongsModeIsRunning;
  bool isShowingDozewellUI;
  bool shouldPauseMusicAtTheEndOfThisTrack;  // the duration is over, the track is not
  long nbSongsToPlayBeforeStop;
  long nbSongsPlayed;
  objc::Strong<NSString> lastSongTitleName;
  objc::Strong<UIViewController> dozewell2VC;  // the panel
  objc::Strong<MRUNowPlayingViewController> currentNowPlayingVC;
  long lastChosenNbSeconds;        // 0: none yet
  long lastChosenNbSongsSelected;  // 0: none yet

  static Dozewell2Manager& sharedInstance();

  id init();
  bool isRunning() const { return timerModeIsRunning || nbSongsModeIsRunning; }

  void startTimerWithMode_andValue(long mode, long value);
  void startTimerWithTimeInterval(long seconds);
  void startTimerWithNbTracks(long count);
  void restartTimerWithLastChosenValue();
  void timerDidFire();
  void timerOrNbTracksDidEnd();
  void cancelTimer();
  void reinit();

  double getTimerRemainingTime() const;  // seconds; negative once due, 0 without a timer
  long getTimerRemainingTracks() const;

  void mediaDidChange(objc::Object notification);
  void handleTrackChangedIfNeeded();

  void persistTimerWithTimeInterval(long seconds);
  void persistTimerWithNbTracks(long count);
  void cancelAllPersistedTimers();
  void restoreDozewellIfNeeded();

  // Whether each of two other extensions of the media module is installed and switched on. The
  // files are read at every call.
  static bool sylphTweakEnabled();
  static bool grupiTweakEnabled();  // and its small music controller is

  static Class registerClass();
};
