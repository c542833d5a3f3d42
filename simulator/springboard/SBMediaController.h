// The host's remote control of whatever application plays.
#pragma once

#include "objc/Class.h"

namespace sim {

struct SBMediaController : objc::Implementation<SBMediaController> {
  static objc::Object sharedInstance();

  void play();
  void pause();
  // Replaces `pause` on some systems. The source says what asked; 0 is nobody in particular.
  void pauseForEventSource(long source);
  void togglePlayPause();
  void togglePlayPauseForEventSource(long source);
  bool isPlaying();
  // There is a track, and it does not play.
  bool isPaused();
  // nil when nothing plays.
  objc::Object nowPlayingApplication();

  float volume();  // 0 to 1
  void setVolume(float level);
  bool suppressHUD();
  void setSuppressHUD(bool suppress);
  // An instance variable on the platform, read by key.
  objc::Object volumeControl();

  static void registerClass();
};

}  // namespace sim
