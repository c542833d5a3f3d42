// The sleep timer as the indicators see it.
#pragma once

#include "platform/Foundation.h"

// Main thread.
struct SleepTimer : NSObject {
  using NSObject::NSObject;

  // The one timer of the process. Its class is above this folder, and defines this.
  static SleepTimer sharedInstance();

  bool timerModeIsRunning() const { return objc::send<bool, "timerModeIsRunning">(*this); }
  bool nbSongsModeIsRunning() const { return objc::send<bool, "nbSongsModeIsRunning">(*this); }
  // The duration is over, the track is not.
  bool shouldPauseMusicAtTheEndOfThisTrack() const {
    return objc::send<bool, "shouldPauseMusicAtTheEndOfThisTrack">(*this);
  }
  // Seconds; negative once due, 0 without a timer.
  double getTimerRemainingTime() const {
    return objc::send<double, "getTimerRemainingTime">(*this);
  }
  long getTimerRemainingTracks() const {
    return objc::send<long, "getTimerRemainingTracks">(*this);
  }
};
