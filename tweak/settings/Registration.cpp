#include "tweak/settings/Registration.h"

#include "platform/Cephei.h"
#include "tweak/settings/Dozewell2StorageManager.h"

// The domain's one preferences object, kept as long as the process; other extensions may use it.
extern "C" __attribute__((visibility("default"))) HBPreferences preferences;
HBPreferences preferences;

// The order is that of the settings, not of the store's fields: `showIndicatorOnNC` is late.
void registerSettings() {
  preferences = HBPreferences::make("com.corvane.dozewell2"_ns).detach();
  const HBPreferences& domain = preferences;
  auto& store = Dozewell2StorageManager::sharedInstance();
  domain.registerBool(&store.enabled, true, "enabled"_ns);
  domain.registerInteger(&store.enabledModes, 0, "enabledModes"_ns);
  domain.registerInteger(&store.timerDefaultValue, 1, "timerDefaultValue"_ns);
  domain.registerInteger(&store.timerMinutesSteps, 5, "timerMinutesSteps"_ns);
  domain.registerBool(&store.volumeFadeOutEnabled, true, "volumeFadeOutEnabled"_ns);
  domain.registerInteger(&store.volumeFadeOutTime, 15, "volumeFadeOutTime"_ns);
  domain.registerBool(&store.letTheSongFinishEnabled, false, "letTheSongFinishEnabled"_ns);
  domain.registerInteger(&store.nbSongsDefaultValue, 1, "nbSongsDefaultValue"_ns);
  domain.registerFloat(&store.confirmViewAutoDismissTime, 1.0, "confirmViewAutoDismissTime"_ns);
  domain.registerBool(&store.onTimerEndsAirplane, false, "onTimerEndsAirplane"_ns);
  domain.registerBool(&store.onTimerEndsDND, false, "onTimerEndsDND"_ns);
  domain.registerBool(&store.onTimerEndsBluetooth, false, "onTimerEndsBluetooth"_ns);
  domain.registerInteger(&store.onTimerEndsBluetoothMode, 0, "onTimerEndsBluetoothMode"_ns);
  domain.registerObject(store.onTimerEndsBluetoothDeviceName.slot(), nullptr,
                        "onTimerEndsBluetoothDeviceName"_ns);
  domain.registerBool(&store.onTimerEndsRunShortcut, false, "onTimerEndsRunShortcut"_ns);
  domain.registerBool(&store.onTimerEndsKillNowPlayingApp, false,
                      "onTimerEndsKillNowPlayingApp"_ns);
  domain.registerBool(&store.onTimerStartsAirplane, false, "onTimerStartsAirplane"_ns);
  domain.registerBool(&store.onTimerStartsDND, false, "onTimerStartsDND"_ns);
  domain.registerBool(&store.onTimerStartsCustomVolume, false, "onTimerStartsCustomVolume"_ns);
  domain.registerBool(&store.onTimerStartsRunShortcut, false, "onTimerStartsRunShortcut"_ns);
  domain.registerInteger(&store.onTimerStartsCustomVolumeValue, 15,
                         "onTimerStartsCustomVolumeValue"_ns);
  domain.registerBool(&store.shakeToRestartTimerEnabled, true, "shakeToRestartTimerEnabled"_ns);
  domain.registerBool(&store.showIndicatorOnNC, true, "showIndicatorOnNC"_ns);
  domain.registerBool(&store.showDozewellButtonInCCMinimizedMediaPlayer, true,
                      "showDozewellButtonInCCMinimizedMediaPlayer"_ns);
}
