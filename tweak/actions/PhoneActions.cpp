// How each action is done on the phone. What the phone does not have is skipped in silence.
#include "platform/BackBoardServices.h"
#include "platform/Dispatch.h"
#include "platform/DoNotDisturb.h"
#include "platform/Radios.h"
#include "platform/Runwright.h"
#include "tweak/actions/SpecialTasksHelper.h"

void SpecialTasksHelper::enablePlaneMode() {
  const auto radios = RadiosPreferences::make();
  radios->setAirplaneMode(true);
  radios->synchronize();
}

void SpecialTasksHelper::enableDND() {
  const auto service = DNDModeAssertionService::serviceForClientIdentifier(
      "com.apple.donotdisturb.control-center.module"_ns);
  if (service) {
    // The same request as Control Center's own toggle, so that the user can end it there.
    const auto details =
        DNDModeAssertionDetails::userRequested("com.apple.control-center.manual-toggle"_ns,
                                               "com.apple.donotdisturb.mode.default"_ns, nullptr);
    service.takeModeAssertionWithDetails(details, nullptr);
  } else {
    BBSettingsGateway::make()->setBehaviorOverrideStatus(1);
  }
}

void SpecialTasksHelper::disconnectBluetoothDevice(NSString name) {
  const auto manager = BluetoothManager::sharedInstance();
  // The manager's list may be its own, and shrink with every device.
  const auto devices = manager.connectedDevices().copy();
  const unsigned long count = devices->count();
  for (unsigned long i = 0; i < count; ++i) {
    const auto device = objc::as<BluetoothDevice>(devices->objectAtIndex(i));
    if (!name || device.name().isEqual(name)) manager.disconnectDevicePhysicalLink(device);
  }
}

void SpecialTasksHelper::disableBluetooth() {
  BluetoothManager::sharedInstance().setEnabled(false);
}

void SpecialTasksHelper::executeShortcutIfPossibleWithName(NSString name) {
  if (!RunwrightManager::sharedManager().workflowNames().containsObject(name)) return;
  dispatch::onMain(
      [name = objc::retain(name)] { RunwrightManager::sharedManager().runWorkflowWithName(name); });
}

void SpecialTasksHelper::killNowPlayingApp() {
  const auto bundleIdentifier =
      SBMediaController::sharedInstance().nowPlayingApplication().bundleIdentifier();
  if (!bundleIdentifier) return;
  constexpr int reason = 5;
  BackBoardServices::terminateApplication(bundleIdentifier, reason, false,
                                          "Now playing app killed by Dozewell"_ns);
}
