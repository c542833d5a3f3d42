// The host's remote control of whatever application plays.
#pragma once

#include "objc/Class.h"

namespace sim {

struct SBMediaController : objc::Implementation<SBMediaController> {
  // Made as the host launches; the process then hears of what plays.
  static objc::Object sharedInstance();
  objc::Object init();

  void play();
  // Before iOS 15 only.
  void pause();
  // 1 to 7 name who asks, any other is "unknown". NO, and nothing happens, where the system's
  // policy refuses.
  bool pauseForEventSource(long source);
  void togglePlayPause();
  bool togglePlayPauseForEventSource(long source);
  bool isPlaying();
  // There is a track, and it does not play.
  bool isPaused();
  // nil when nothing plays.
  objc::Object nowPlayingApplication();

  // Both before iOS 13 only.
  float volume();  // 0 to 1
  void setVolume(float level);
  bool suppressHUD();
  void setSuppressHUD(bool suppress);
  // An instance variable on the platform, read by key.
  objc::Object volumeControl();

  // A policy of the system can refuse every command to whatever plays, until the host ends.
  static void setRefusesCommands(bool refuses);

  static void registerClass();
};

}  // namespace sim
