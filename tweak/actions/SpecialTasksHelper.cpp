#include "tweak/actions/SpecialTasksHelper.h"

#include "platform/MediaRemote.h"

SpecialTasksHelper& SpecialTasksHelper::getInstance() {
  return shared();
}

void SpecialTasksHelper::pauseMusic() {
  const auto controller = SBMediaController::sharedInstance();
  if (controller.canPause()) {
    controller.pause();
  } else if (controller.canPauseForEventSource()) {
    controller.pauseForEventSource(0);
  }
  // Even where nothing could be paused: the timer has ended.
  getInstance().performSpecialActionsOnTimerEnd();
}

void SpecialTasksHelper::skipSong() {
  MediaRemote::sendCommand(MediaRemote::Command::nextTrack, nullptr);
}

Class SpecialTasksHelper::registerClass() {
  using Tasks = SpecialTasksHelper;
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
