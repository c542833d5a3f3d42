// The lock screen's part in showing what is left, and Control Center's: when to refresh.
#pragma once

#include "objc/Hook.h"
#include "platform/LockScreen.h"

namespace LockScreen {

// The newest of each that the host has made; nil before the lock screen was first shown.
CSTimerViewController timerController();
SBFLockScreenDateSubtitleDateView dateView();

// CSTimerViewController initWithNibName:bundle:
CSTimerViewController initTimerController(
    objc::Original<CSTimerViewController(CSTimerViewController, NSString, NSBundle)> original,
    CSTimerViewController self, NSString nibName, NSBundle bundle);
// CSTimerViewController dozewell_startTimerWithDate:, dozewell_stopTimer
void startCountdown(CSTimerViewController self, objc::Object end);
void stopCountdown(CSTimerViewController self);

// SBFLockScreenDateSubtitleDateView _setDate:inTimeZone:
void setDate(
    objc::Original<void(SBFLockScreenDateSubtitleDateView, objc::Object, objc::Object)> original,
    SBFLockScreenDateSubtitleDateView self, objc::Object date, objc::Object timeZone);
// SBFLockScreenDateSubtitleDateView dozewell_setNbTracksLeftText, dozewell_setText:,
// dozewell_restoreOriginalText
void setTracksLeftText(SBFLockScreenDateSubtitleDateView self);
void setText(SBFLockScreenDateSubtitleDateView self, objc::Object text);
void restoreOriginalText(SBFLockScreenDateSubtitleDateView self);

// CCUIContentModuleContainerViewController setExpanded:
void setModuleExpanded(
    objc::Original<void(CCUIContentModuleContainerViewController, bool)> original,
    CCUIContentModuleContainerViewController self, bool expanded);

}  // namespace LockScreen
