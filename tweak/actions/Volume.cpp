// The media volume, and the fade-out that ends a duration.
#include "platform/Dispatch.h"
#include "tweak/actions/SpecialTasksHelper.h"
#include "tweak/settings/Dozewell2StorageManager.h"

namespace {

constexpr double secondsPerStep = 0.1;
constexpr std::int64_t stepNanoseconds = 100'000'000;
constexpr std::int64_t restoreDelayNanoseconds = 2'000'000'000;
constexpr std::int64_t indicatorDelayNanoseconds = 300'000'000;

// iOS 13 moved the media volume to an object of its own.
bool hasVolumeControl() {
  return UIDevice::currentDevice().systemVersion().floatValue() >= 13.0f;
}

// The volume indicator stays away until a change of volume has passed.
void showIndicatorLater(SBMediaController controller) {
  dispatch::onMainAfter(indicatorDelayNanoseconds, [controller = objc::retain(controller)] {
    controller->setSuppressHUD(false);
  });
}

// So that the next listening starts at the volume the user had before the fade.
void restoreVolumeLater(SBMediaController controller) {
  dispatch::onMainAfter(restoreDelayNanoseconds, [controller = objc::retain(controller)] {
    auto& tasks = SpecialTasksHelper::getInstance();
    tasks.setVolume(tasks.volumeBeforeFadeOut);
    showIndicatorLater(controller);
  });
}

}  // namespace

SBVolumeControl SpecialTasksHelper::getSBVolumeControl() {
  return SBMediaController::sharedInstance().volumeControl();
}

double SpecialTasksHelper::getVolume() {
  return hasVolumeControl() ? getSBVolumeControl().mediaVolume()
                            : SBMediaController::sharedInstance().volume();
}

void SpecialTasksHelper::setVolume(double volume) {
  // Not clamped: the last step of a fade may go below zero, and the host clamps.
  if (hasVolumeControl()) {
    getSBVolumeControl().setVolume(float(volume), "Audio/Video"_ns);
  } else {
    SBMediaController::sharedInstance().setVolume(float(volume));
  }
}

void SpecialTasksHelper::changeVolumeBy(double difference) {
  setVolume(getVolume() + difference);
}

void SpecialTasksHelper::pauseMusicWithFadeOutVolume(int seconds) {
  volumeBeforeFadeOut = getVolume();
  const double steps = seconds / secondsPerStep;
  doVolumeFadeOutWithSteps(float(volumeBeforeFadeOut / steps));
}

void SpecialTasksHelper::setCustomVolume() {
  const auto controller = SBMediaController::sharedInstance();
  controller.setSuppressHUD(true);
  setVolume(double(Dozewell2StorageManager::sharedInstance().onTimerStartsCustomVolumeValue) /
            100.0);
  showIndicatorLater(controller);
}

// The volume is read anew at every step, so the user can lengthen or end the fade by hand.
void SpecialTasksHelper::doVolumeFadeOutWithSteps(float decrement) {
  const auto controller = SBMediaController::sharedInstance();
  if (getVolume() > 0.0) {
    controller.setSuppressHUD(true);
    changeVolumeBy(-decrement);
    dispatch::onMainAfter(stepNanoseconds, [decrement] {
      SpecialTasksHelper::getInstance().doVolumeFadeOutWithSteps(decrement);
    });
  } else {
    pauseMusic();
    restoreVolumeLater(controller);
  }
}
