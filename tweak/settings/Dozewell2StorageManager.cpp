#include "tweak/settings/Dozewell2StorageManager.h"

using Store = Dozewell2StorageManager;

Store& Dozewell2StorageManager::sharedInstance() {
  return shared();
}

Class Dozewell2StorageManager::registerClass() {
  return objc::ClassBuilder<Store>("Dozewell2StorageManager", "NSObject")
      .classMethod<"sharedInstance", &Store::sharedInstance>()
      .readonlyProperty<"enabled", &Store::enabled>()
      .readonlyProperty<"enabledModes", &Store::enabledModes>()
      .readonlyProperty<"timerDefaultValue", &Store::timerDefaultValue>()
      .readonlyProperty<"timerMinutesSteps", &Store::timerMinutesSteps>()
      .readonlyProperty<"volumeFadeOutEnabled", &Store::volumeFadeOutEnabled>()
      .readonlyProperty<"volumeFadeOutTime", &Store::volumeFadeOutTime>()
      .readonlyProperty<"letTheSongFinishEnabled", &Store::letTheSongFinishEnabled>()
      .readonlyProperty<"nbSongsDefaultValue", &Store::nbSongsDefaultValue>()
      .readonlyProperty<"confirmViewAutoDismissTime", &Store::confirmViewAutoDismissTime>()
      .readonlyProperty<"showIndicatorOnNC", &Store::showIndicatorOnNC>()
      .readonlyProperty<"onTimerEndsAirplane", &Store::onTimerEndsAirplane>()
      .readonlyProperty<"onTimerEndsDND", &Store::onTimerEndsDND>()
      .readonlyProperty<"onTimerEndsBluetooth", &Store::onTimerEndsBluetooth>()
      .readonlyProperty<"onTimerEndsBluetoothMode", &Store::onTimerEndsBluetoothMode>()
      .readonlyProperty<"onTimerEndsBluetoothDeviceName", &Store::onTimerEndsBluetoothDeviceName>()
      .readonlyProperty<"onTimerEndsRunShortcut", &Store::onTimerEndsRunShortcut>()
      .readonlyProperty<"onTimerEndsKillNowPlayingApp", &Store::onTimerEndsKillNowPlayingApp>()
      .readonlyProperty<"onTimerStartsAirplane", &Store::onTimerStartsAirplane>()
      .readonlyProperty<"onTimerStartsDND", &Store::onTimerStartsDND>()
      .readonlyProperty<"onTimerStartsCustomVolume", &Store::onTimerStartsCustomVolume>()
      .readonlyProperty<"onTimerStartsCustomVolumeValue", &Store::onTimerStartsCustomVolumeValue>()
      .readonlyProperty<"onTimerStartsRunShortcut", &Store::onTimerStartsRunShortcut>()
      .readonlyProperty<"shakeToRestartTimerEnabled", &Store::shakeToRestartTimerEnabled>()
      .readonlyProperty<"showDozewellButtonInCCMinimizedMediaPlayer",
                        &Store::showDozewellButtonInCCMinimizedMediaPlayer>()
      .property<"wholeStorageDictionary", &Store::wholeStorageDictionary>()
      .finish();
}
