// What the timer does to the phone: pausing, the volume, and the user's start and end actions.
#pragma once

#include "objc/Class.h"
#include "platform/SpringBoard.h"

// Main thread.
struct SpecialTasksHelper : objc::Implementation<SpecialTasksHelper> {
  double volumeBeforeFadeOut;  // 0 to 1

  static SpecialTasksHelper& getInstance();

  void pauseMusic();  // and runs the end actions
  void pauseMusicWithFadeOutVolume(int seconds);
  // One step of a fade-out. The argument is the volume that a step takes away, not a count.
  void doVolumeFadeOutWithSteps(float decrement);

  void setVolume(double volume);  // 0 to 1, not clamped here
  void changeVolumeBy(double difference);
  double getVolume();
  SBVolumeControl getSBVolumeControl();
  void skipSong();

  // The actions that the user has chosen, in a fixed order, each setting read just before its
  // step. None waits for another, and none is skipped because another failed.
  void performSpecialActionsOnTimerStart();
  void performSpecialActionsOnTimerEnd();

  void enablePlaneMode();
  void enableDND();
  void disconnectBluetoothDevice(NSString name);  // all of that exact name; nil: every device
  void disableBluetooth();
  void setCustomVolume();
  void executeShortcutIfPossibleWithName(NSString name);
  void killNowPlayingApp();

  static Class registerClass();
};
