#include "tweak/hooks/LockScreen.h"

#include "objc/Global.h"
#include "tweak/engine/Dozewell2Manager.h"
#include "tweak/indicators/Dozewell2TimeLeftIndicatorsManager.h"
#include "tweak/settings/Dozewell2StorageManager.h"
#include "tweak/support/BundleHelper.h"
#include "tweak/support/LocalizationHelper.h"
#include "tweak/support/Log.h"

namespace LockScreen {
namespace {

// Kept alive until the host makes the next one.
objc::Global<objc::Strong<CSTimerViewController>> newestTimerController;
objc::Global<objc::Strong<SBFLockScreenDateSubtitleDateView>> newestDateView;

NSString tracksLeftText(long tracks) {
  if (tracks == 1) return BundleHelper::getLocalizedStringFor("1_SONG"_ns);
  return NSString::stringWithFormat(BundleHelper::getLocalizedStringFor("N_SONG"_ns),
                                    LocalizationHelper::getLocalizedNumberStringFrom(tracks));
}

}  // namespace

CSTimerViewController timerController() {
  return *newestTimerController;
}
SBFLockScreenDateSubtitleDateView dateView() {
  return *newestDateView;
}

CSTimerViewController initTimerController(
    objc::Original<CSTimerViewController(CSTimerViewController, NSString, NSBundle)> original,
    CSTimerViewController self, NSString nibName, NSBundle bundle) {
  const auto made = original(self, nibName, bundle);
  *newestTimerController = objc::retain(made);
  return made;
}

void startCountdown(CSTimerViewController self, objc::Object end) {
  self.setEndDate(objc::as<NSDate>(end));
}

void stopCountdown(CSTimerViewController self) {
  self.setEndDate(nullptr);
}

void setDate(
    objc::Original<void(SBFLockScreenDateSubtitleDateView, objc::Object, objc::Object)> original,
    SBFLockScreenDateSubtitleDateView self, objc::Object date, objc::Object timeZone) {
  original(self, date, timeZone);
  *newestDateView = objc::retain(self);
  // The host redraws the date when it likes; the songs left must survive it.
  if (Dozewell2StorageManager::sharedInstance().showIndicatorOnNC &&
      Dozewell2Manager::sharedInstance().nbSongsModeIsRunning)
    objc::send<void, "dozewell_setNbTracksLeftText">(self);
}

void setTracksLeftText(SBFLockScreenDateSubtitleDateView self) {
  const long tracks = Dozewell2Manager::sharedInstance().getTimerRemainingTracks();
  objc::send<void, "dozewell_setText:">(self, tracksLeftText(tracks));
}

void setText(SBFLockScreenDateSubtitleDateView self, objc::Object text) {
  self.label().setString(objc::as<NSString>(text));
  self.sizeToFit();
}

void restoreOriginalText(SBFLockScreenDateSubtitleDateView self) {
  self.setDate(NSDate::date());
}

void setModuleExpanded(
    objc::Original<void(CCUIContentModuleContainerViewController, bool)> original,
    CCUIContentModuleContainerViewController self, bool expanded) {
  (LogLine() << "-[<CCUIContentModuleContainerViewController: "
             << static_cast<const void*>(self.get()) << "> setExpanded:" << (expanded ? "1" : "0")
             << "]")
      .write();
  original(self, expanded);
  if (!self.moduleIdentifier().isEqualToString(
          "com.apple.mediaremote.controlcenter.nowplaying"_ns) ||
      !Dozewell2Manager::sharedInstance().timerModeIsRunning)
    return;
  auto& indicators = Dozewell2TimeLeftIndicatorsManager::sharedInstance();
  if (expanded) {
    indicators.startUpdatingRemainingTimeLabelsInCC();
  } else {
    indicators.stopUpdatingRemainingTimeLabelsInCC();
  }
}

}  // namespace LockScreen
