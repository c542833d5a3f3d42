// Which actions run when a timer starts and ends.
#include "tweak/actions/SpecialTasksHelper.h"
#include "tweak/settings/Dozewell2StorageManager.h"
#include "tweak/support/Log.h"

namespace {

enum BluetoothMode : long { disconnectAll = 0, disconnectNamed = 1, switchOff = 2 };

void performBluetoothAction(SpecialTasksHelper& tasks, const Dozewell2StorageManager& settings) {
  switch (settings.onTimerEndsBluetoothMode) {
    case disconnectAll:
      tasks.disconnectBluetoothDevice(nullptr);
      break;
    case disconnectNamed:
      tasks.disconnectBluetoothDevice(settings.onTimerEndsBluetoothDeviceName);
      break;
    case switchOff:
      tasks.disableBluetooth();
      break;
  }
}

}  // namespace

void SpecialTasksHelper::performSpecialActionsOnTimerStart() {
  (LogLine() << "performSpecialActionsOnTimerStart").write();
  const auto& settings = Dozewell2StorageManager::sharedInstance();
  if (settings.onTimerStartsAirplane) enablePlaneMode();
  if (settings.onTimerStartsDND) enableDND();
  if (settings.onTimerStartsCustomVolume) setCustomVolume();
  // The user makes shortcuts of exactly these names.
  if (settings.onTimerStartsRunShortcut) executeShortcutIfPossibleWithName("Dozewell Start"_ns);
}

void SpecialTasksHelper::performSpecialActionsOnTimerEnd() {
  const auto& settings = Dozewell2StorageManager::sharedInstance();
  // Airplane mode goes first: Bluetooth is then what airplane mode has left of it.
  if (settings.onTimerEndsAirplane) enablePlaneMode();
  if (settings.onTimerEndsDND) enableDND();
  if (settings.onTimerEndsBluetooth) performBluetoothAction(*this, settings);
  if (settings.onTimerEndsRunShortcut) executeShortcutIfPossibleWithName("Dozewell End"_ns);
  if (settings.onTimerEndsKillNowPlayingApp) killNowPlayingApp();
}
