// The sleep timer: at most one at a time, a duration or a number of songs.
#pragma once

#include "objc/Registration.h"
#include "tweak/engine/DozewellNowPlayingController.h"
#include "tweak/engine/TimerPanel.h"
#include "tweak/indicators/SleepTimer.h"

// Main thread.
struct Dozewell2Manager : SleepTimer {
  using SleepTimer::SleepTimer;
  enum TimerMode : long { durationMode = 0, songCountMode = 1 };

  // The one engine, which follows the playing track from its first use on.
  static Dozewell2Manager sharedInstance() {
    return objc::send<Dozewell2Manager, "sharedInstance">(cls());
  }

  bool isRunning() const { return objc::send<bool, "isRunning">(*this); }
  // Whether the panel is on the screen. The end of a timer closes it.
  bool isShowingDozewellUI() const { return objc::send<bool, "isShowingDozewellUI">(*this); }
  void setIsShowingDozewellUI(bool showing) const {
    objc::send<void, "setIsShowingDozewellUI:">(*this, showing);
  }
  // The panel, which the engine keeps; nil before the host has launched.
  TimerPanel dozewell2VC() const { return objc::send<TimerPanel, "dozewell2VC">(*this); }
  void setDozewell2VC(TimerPanel panel) const { objc::send<void, "setDozewell2VC:">(*this, panel); }
  // The host's controller that the panel returns to, which the engine keeps; nil before the
  // module was first shown.
  DozewellNowPlayingController currentNowPlayingVC() const {
    return objc::send<DozewellNowPlayingController, "currentNowPlayingVC">(*this);
  }
  void setCurrentNowPlayingVC(MRUNowPlayingViewController controller) const {
    objc::send<void, "setCurrentNowPlayingVC:">(*this, controller);
  }

  // Starts a timer and runs the start actions. The value is seconds or songs, by the mode. A timer
  // that runs is not stopped: cancelTimer comes first.
  void startTimerWithMode_andValue(long mode, long value) const {
    objc::send<void, "startTimerWithMode:andValue:">(*this, mode, value);
  }
  // The running mode again, with the value last started from the panel; nothing when there is none.
  // A duration's old host timer lives on, and its end is the end of the new one, too.
  void restartTimerWithLastChosenValue() const {
    objc::send<void, "restartTimerWithLastChosenValue">(*this);
  }
  void cancelTimer() const { objc::send<void, "cancelTimer">(*this); }  // of a duration; no more
  // Back to idle, without pausing anything.
  void reinit() const { objc::send<void, "reinit">(*this); }
  // Resumes the timer that ran when the host was last alive, if it is not over.
  void restoreDozewellIfNeeded() const { objc::send<void, "restoreDozewellIfNeeded">(*this); }

  static Class cls();  // nil until it is registered
  static objc::Registration registerClass();
};
