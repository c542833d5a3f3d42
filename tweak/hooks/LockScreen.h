// The lock screen's part in showing what is left, and Control Center's: when to refresh.
#pragma once

#include "objc/Hook.h"
#include "tweak/indicators/LockScreenViews.h"

namespace LockScreen {

// CSTimerViewController initWithNibName:bundle:
CSTimerViewController initTimerController(
    objc::Original<CSTimerViewController(CSTimerViewController, NSString, NSBundle)> original,
    CSTimerViewController self, NSString nibName, NSBundle bundle);
// CSTimerViewController dozewell_startTimerWithDate:, dozewell_stopTimer
void startCountdown(DozewellTimerController self, objc::Object end);
void stopCountdown(DozewellTimerController self);

// SBFLockScreenDateSubtitleDateView _setDate:inTimeZone:
void setDate(objc::Original<void(DozewellDateView, objc::Object, objc::Object)> original,
             DozewellDateView self, objc::Object date, objc::Object timeZone);
// SBFLockScreenDateSubtitleDateView dozewell_setNbTracksLeftText, dozewell_setText:,
// dozewell_restoreOriginalText
void setTracksLeftText(DozewellDateView self);
void setText(DozewellDateView self, objc::Object text);
void restoreOriginalText(DozewellDateView self);

// CCUIContentModuleContainerViewController setExpanded:
void setModuleExpanded(
    objc::Original<void(CCUIContentModuleContainerViewController, bool)> original,
    CCUIContentModuleContainerViewController self, bool expanded);

}  // namespace LockScreen
