#include "tweak/hooks/LockScreen.h"

#include "tweak/engine/Dozewell2Manager.h"
#include "tweak/indicators/Dozewell2TimeLeftIndicatorsManager.h"
#include "tweak/settings/Dozewell2StorageManager.h"
#include "tweak/support/BundleHelper.h"
#include "tweak/support/LocalizationHelper.h"
#include "tweak/support/Log.h"

namespace LockScreen {
namespace {

// Text without a number for one song, as the languages want it; 0 takes the other form.
NSString tracksLeftText(long tracks) {
  if (tracks == 1) return BundleHelper::getLocalizedStringFor("1_SONG"_ns);
  return NSString::stringWithFormat(BundleHelper::getLocalizedStringFor("N_SONG"_ns),
                                    LocalizationHelper::getLocalizedNumberStringFrom(tracks));
}

}  // namespace

CSTimerViewController initTimerController(
    objc::Original<CSTimerViewController(CSTimerViewController, NSString, NSBundle)> original,
    CSTimerViewController self, NSString nibName, NSBundle bundle) {
  const auto made = original(self, nibName, bundle);
  DozewellTimerController::setNewest(made);
  return made;
}

void startCountdown(DozewellTimerController self, objc::Object end) {
  self.showEndDate(objc::as<NSDate>(end));
}

void stopCountdown(DozewellTimerController self) {
  self.showEndDate(nullptr);
}

void setDate(objc::Original<void(DozewellDateView, objc::Object, objc::Object)> original,
             DozewellDateView self, objc::Object date, objc::Object timeZone) {
  original(self, date, timeZone);
  DozewellDateView::setNewest(self);
  if (!Dozewell2StorageManager::sharedInstance().showIndicatorOnNC()) return;
  // The host redraws the date when it likes, at the latest when the phone is locked. The songs left
  // must survive it; and the countdown, which somebody else may have taken away, is seen from then
  // on.
  DozewellTimerController::showEndDateAgain();
  if (Dozewell2Manager::sharedInstance().nbSongsModeIsRunning())
    self.dozewell_setNbTracksLeftText();
}

void setTracksLeftText(DozewellDateView self) {
  const long tracks = Dozewell2Manager::sharedInstance().getTimerRemainingTracks();
  self.dozewell_setText(tracksLeftText(tracks));
}

void setText(DozewellDateView self, objc::Object text) {
  self.label().setString(objc::as<NSString>(text));
  self.sizeToFit();
}

void restoreOriginalText(DozewellDateView self) {
  self.setDate(NSDate::date());
}

void setModuleExpanded(
    objc::Original<void(CCUIContentModuleContainerViewController, bool)> original,
    CCUIContentModuleContainerViewController self, bool expanded) {
  logCall("CCUIContentModuleContainerViewController", self, "setExpanded:", expanded ? "1" : "0");
  original(self, expanded);
  // Only a duration changes the label every second, and nobody sees it while the module is small.
  if (!self.moduleIdentifier().isEqualToString(
          "com.apple.mediaremote.controlcenter.nowplaying"_ns) ||
      !Dozewell2Manager::sharedInstance().timerModeIsRunning())
    return;
  const auto indicators = Dozewell2TimeLeftIndicatorsManager::sharedInstance();
  if (expanded) {
    indicators.startUpdatingRemainingTimeLabelsInCC();
  } else {
    indicators.stopUpdatingRemainingTimeLabelsInCC();
  }
}

}  // namespace LockScreen
