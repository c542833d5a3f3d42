// Every setting of the extension, kept current by the preferences library.
#pragma once

#include "objc/Class.h"
#include "platform/Foundation.h"

// Read a field at the moment of use and do not keep its value: it follows the preferences domain
// while the host runs. Main thread. The store has no setters; writers write to the domain.
struct Dozewell2StorageManager : objc::Implementation<Dozewell2StorageManager> {
  bool enabled;       // off: start-up installs nothing
  long enabledModes;  // 0 durations and songs, 1 durations only, 2 songs only
  long timerDefaultValue;
  long timerMinutesSteps;
  bool volumeFadeOutEnabled;
  long volumeFadeOutTime;  // seconds
  bool letTheSongFinishEnabled;
  long nbSongsDefaultValue;
  double confirmViewAutoDismissTime;  // seconds
  bool showIndicatorOnNC;
  bool onTimerEndsAirplane;
  bool onTimerEndsDND;
  bool onTimerEndsBluetooth;
  long onTimerEndsBluetoothMode;
  objc::Strong<NSString> onTimerEndsBluetoothDeviceName;  // may be nil
  bool onTimerEndsRunShortcut;
  bool onTimerEndsKillNowPlayingApp;
  bool onTimerStartsAirplane;
  bool onTimerStartsDND;
  bool onTimerStartsCustomVolume;
  long onTimerStartsCustomVolumeValue;  // percent
  bool onTimerStartsRunShortcut;
  bool shakeToRestartTimerEnabled;
  bool showDozewellButtonInCCMinimizedMediaPlayer;
  objc::Strong<NSDictionary> wholeStorageDictionary;  // reserved

  static Dozewell2StorageManager& sharedInstance();
  static Class registerClass();
};
