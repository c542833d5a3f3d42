#include "tweak/actions/SpecialTasksHelper.h"

#include "objc/Class.h"
#include "platform/BackBoardServices.h"
#include "platform/Dispatch.h"
#include "platform/DoNotDisturb.h"
#include "platform/MediaRemote.h"
#include "platform/Radios.h"
#include "platform/Runwright.h"
#include "platform/SpringBoard.h"
#include "tweak/settings/Dozewell2StorageManager.h"
#include "tweak/support/Log.h"

namespace {

// What a step of a fade-out leaves to the next one, 0 to 1.
struct FadeStep {
  double found = 0;
  double written = 0;           // in single precision, as the host is told it
  bool changedNothing = false;  // like the one before it: both found the same and left it so
};

struct SpecialTasksHelperImplementation : objc::Implementation<SpecialTasksHelperImplementation> {
  double volumeBeforeFadeOut;  // 0 to 1

  static SpecialTasksHelperImplementation& getInstance() { return shared(); }

  void pauseMusic();
  void skipSong();

  double getVolume();             // 0 to 1
  void setVolume(double volume);  // 0 to 1, not clamped here
  void changeVolumeBy(double difference);
  SBVolumeControl getSBVolumeControl();
  void pauseMusicWithFadeOutVolume(int seconds);
  // One step of a fade-out. The argument is the volume that a step takes away, not a count.
  void doVolumeFadeOutWithSteps(float decrement);
  void takeFadeStep(float decrement, FadeStep before);

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
};

using Tasks = SpecialTasksHelperImplementation;

// Pausing

void Tasks::pauseMusic() {
  const auto controller = SBMediaController::sharedInstance();
  if (controller.canPause()) {
    controller.pause();
  } else if (controller.canPauseForEventSource() && !controller.pauseForEventSource(0)) {
    (LogLine() << "Dozewell could not pause what plays: the system refused").write();
  }
  // Even where nothing could be paused: the timer has ended.
  getInstance().performSpecialActionsOnTimerEnd();
}

void Tasks::skipSong() {
  MediaRemote::sendCommand(MediaRemote::Command::nextTrack, nullptr);
}

// The volume

constexpr double secondsPerStep = 0.1;
constexpr std::int64_t stepNanoseconds = 100'000'000;
constexpr std::int64_t restoreDelayNanoseconds = 2'000'000'000;
constexpr std::int64_t indicatorDelayNanoseconds = 300'000'000;

// iOS 13 moved the media volume to an object of its own.
bool hasVolumeControl() {
  return UIDevice::systemIsAtLeast(13.0F);
}

// The volume indicator stays away until a change of volume has passed.
void showIndicatorLater(SBMediaController controller) {
  dispatch::onMainAfter(indicatorDelayNanoseconds, [controller = objc::retain(controller)] {
    controller->setSuppressHUD(false);
  });
}

// So that the next listening starts at the volume the user had before the fade; whatever the user
// has done to it since.
void restoreVolumeLater(SBMediaController controller) {
  dispatch::onMainAfter(restoreDelayNanoseconds, [controller = objc::retain(controller)] {
    auto& tasks = Tasks::getInstance();
    tasks.setVolume(tasks.volumeBeforeFadeOut);
    showIndicatorLater(controller);
  });
}

SBVolumeControl Tasks::getSBVolumeControl() {
  return SBMediaController::sharedInstance().volumeControl();
}

double Tasks::getVolume() {
  return hasVolumeControl() ? getSBVolumeControl().mediaVolume()
                            : SBMediaController::sharedInstance().volume();
}

void Tasks::setVolume(double volume) {
  // Not clamped: the last step of a fade may go below zero, and the host clamps.
  if (hasVolumeControl()) {
    getSBVolumeControl().setVolume(float(volume), "Audio/Video"_ns);
  } else {
    SBMediaController::sharedInstance().setVolume(float(volume));
  }
}

void Tasks::changeVolumeBy(double difference) {
  setVolume(getVolume() + difference);
}

// The number of steps need not be whole, and is not rounded. The division is in double precision;
// what a step takes away is narrowed once, to what the host's volume is told in.
void Tasks::pauseMusicWithFadeOutVolume(int seconds) {
  volumeBeforeFadeOut = getVolume();
  const double steps = seconds / secondsPerStep;
  doVolumeFadeOutWithSteps(float(volumeBeforeFadeOut / steps));
}

void Tasks::doVolumeFadeOutWithSteps(float decrement) {
  takeFadeStep(decrement, FadeStep());
}

// The volume is read again at every step: the user who makes it louder has a longer fade, and the
// user who silences the phone ends it. But a route that knows only some volumes, as Bluetooth does,
// rounds what a short step asks for back to where it was; a fade that went on from what it reads
// would never end there. Two such steps in a row, and it goes on from what it has last asked for,
// until the volume moves. A hand that holds the volume up, step after step, is no such route: what
// was asked for can be read there until the hand is back.
void Tasks::takeFadeStep(float decrement, FadeStep before) {
  const auto controller = SBMediaController::sharedInstance();
  FadeStep step{.found = getVolume()};
  if (step.found > 0.0) {
    step.changedNothing = before.written < step.found && step.found == before.found;
    const bool isRounded = step.changedNothing && before.changedNothing;
    step.written = float((isRounded ? before.written : step.found) - decrement);
    controller.setSuppressHUD(true);
    if (isRounded) {
      setVolume(step.written);
    } else {
      changeVolumeBy(-decrement);
    }
    if (step.changedNothing) step.changedNothing = getVolume() == step.found;
    dispatch::onMainAfter(stepNanoseconds,
                          [decrement, step] { getInstance().takeFadeStep(decrement, step); });
  } else {
    pauseMusic();
    restoreVolumeLater(controller);
  }
}

// Which actions run

enum BluetoothMode : long { disconnectAll = 0, disconnectNamed = 1, switchOff = 2 };

void performBluetoothAction(Tasks& tasks, Dozewell2StorageManager settings) {
  switch (settings.onTimerEndsBluetoothMode()) {
    case disconnectAll:
      tasks.disconnectBluetoothDevice(nullptr);
      break;
    case disconnectNamed:
      tasks.disconnectBluetoothDevice(settings.onTimerEndsBluetoothDeviceName());
      break;
    case switchOff:
      tasks.disableBluetooth();
      break;
  }
}

void Tasks::performSpecialActionsOnTimerStart() {
  (LogLine() << "performSpecialActionsOnTimerStart").write();
  const auto settings = Dozewell2StorageManager::sharedInstance();
  if (settings.onTimerStartsAirplane()) enablePlaneMode();
  if (settings.onTimerStartsDND()) enableDND();
  if (settings.onTimerStartsCustomVolume()) setCustomVolume();
  // The user makes shortcuts of exactly these names.
  if (settings.onTimerStartsRunShortcut()) executeShortcutIfPossibleWithName("Dozewell Start"_ns);
}

void Tasks::performSpecialActionsOnTimerEnd() {
  const auto settings = Dozewell2StorageManager::sharedInstance();
  // Airplane mode goes first: Bluetooth is then what airplane mode has left of it.
  if (settings.onTimerEndsAirplane()) enablePlaneMode();
  if (settings.onTimerEndsDND()) enableDND();
  if (settings.onTimerEndsBluetooth()) performBluetoothAction(*this, settings);
  if (settings.onTimerEndsRunShortcut()) executeShortcutIfPossibleWithName("Dozewell End"_ns);
  if (settings.onTimerEndsKillNowPlayingApp()) killNowPlayingApp();
}

// How each is done on the phone

void Tasks::enablePlaneMode() {
  const auto radios = RadiosPreferences::make();
  radios->setAirplaneMode(true);
  if (radios->canSynchronize()) radios->synchronize();
}

void Tasks::enableDND() {
  const auto service = DNDModeAssertionService::serviceForClientIdentifier(
      "com.apple.donotdisturb.control-center.module"_ns);
  if (service) {
    // The same request as Control Center's own toggle, so that the user can end it there.
    const auto details =
        DNDModeAssertionDetails::userRequested("com.apple.control-center.manual-toggle"_ns,
                                               "com.apple.donotdisturb.mode.default"_ns, nullptr);
    service.takeModeAssertionWithDetails(details, nullptr);
  } else {
    const auto gateway = BBSettingsGateway::make();
    if (gateway->canSetBehaviorOverrideStatus()) gateway->setBehaviorOverrideStatus(1);
  }
}

void Tasks::disconnectBluetoothDevice(NSString name) {
  const auto manager = BluetoothManager::sharedInstance();
  // The manager's list may be its own, and shrink with every device.
  const auto devices = manager.connectedDevices().copy();
  const unsigned long count = devices->count();
  for (unsigned long i = 0; i < count; ++i) {
    const auto device = objc::as<BluetoothDevice>(devices->objectAtIndex(i));
    if (!name || device.name().isEqual(name)) manager.disconnectDevicePhysicalLink(device);
  }
}

void Tasks::disableBluetooth() {
  BluetoothManager::sharedInstance().setEnabled(false);
}

void Tasks::setCustomVolume() {
  const auto controller = SBMediaController::sharedInstance();
  const long percent = Dozewell2StorageManager::sharedInstance().onTimerStartsCustomVolumeValue();
  controller.setSuppressHUD(true);
  setVolume(double(percent) / 100.0);
  showIndicatorLater(controller);
}

// A shortcut takes the host a while: it runs when the other actions are done, and the runner is
// asked for again by then.
void Tasks::executeShortcutIfPossibleWithName(NSString name) {
  if (!RunwrightManager::sharedManager().workflowNames().containsObject(name)) return;
  dispatch::onMain(
      [name = objc::retain(name)] { RunwrightManager::sharedManager().runWorkflowWithName(name); });
}

void Tasks::killNowPlayingApp() {
  const auto bundleIdentifier =
      SBMediaController::sharedInstance().nowPlayingApplication().bundleIdentifier();
  if (!bundleIdentifier) return;
  constexpr int reason = 5;
  BackBoardServices::terminateApplication(bundleIdentifier, reason, false,
                                          "Now playing app killed by Dozewell"_ns);
}

}  // namespace

Class SpecialTasksHelper::cls() {
  return Tasks::cls();
}

objc::Registration SpecialTasksHelper::registerClass() {
  return objc::ClassBuilder<Tasks>("SpecialTasksHelper", "NSObject")
      .property<"volumeBeforeFadeOut", &Tasks::volumeBeforeFadeOut>()
      .classMethod<"getInstance", &Tasks::getInstance>()
      .method<"pauseMusic", &Tasks::pauseMusic>()
      .method<"pauseMusicWithFadeOutVolume:", &Tasks::pauseMusicWithFadeOutVolume>()
      .method<"doVolumeFadeOutWithSteps:", &Tasks::doVolumeFadeOutWithSteps>()
      .method<"setVolume:", &Tasks::setVolume>()
      .method<"changeVolumeBy:", &Tasks::changeVolumeBy>()
      .method<"getVolume", &Tasks::getVolume>()
      .method<"getSBVolumeControl", &Tasks::getSBVolumeControl>()
      .method<"skipSong", &Tasks::skipSong>()
      .method<"performSpecialActionsOnTimerStart", &Tasks::performSpecialActionsOnTimerStart>()
      .method<"performSpecialActionsOnTimerEnd", &Tasks::performSpecialActionsOnTimerEnd>()
      .method<"enablePlaneMode", &Tasks::enablePlaneMode>()
      .method<"enableDND", &Tasks::enableDND>()
      .method<"disconnectBluetoothDevice:", &Tasks::disconnectBluetoothDevice>()
      .method<"disableBluetooth", &Tasks::disableBluetooth>()
      .method<"setCustomVolume", &Tasks::setCustomVolume>()
      .method<"executeShortcutIfPossibleWithName:", &Tasks::executeShortcutIfPossibleWithName>()
      .method<"killNowPlayingApp", &Tasks::killNowPlayingApp>()
      .finish();
}
