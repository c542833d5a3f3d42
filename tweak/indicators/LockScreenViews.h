// The two places of the lock screen that show what is left: the host's views with the operations
// that the extension adds to them.
#pragma once

#include "platform/LockScreen.h"

// The countdown, for a duration. Main thread.
struct DozewellTimerController : CSTimerViewController {
  using CSTimerViewController::CSTimerViewController;

  // The one that the host made last, kept alive until it makes the next; nil before.
  static DozewellTimerController newest();
  static void setNewest(CSTimerViewController controller);

  // The host then counts down by itself.
  void dozewell_startTimerWithDate(NSDate end) const {
    objc::send<void, "dozewell_startTimerWithDate:">(*this, end);
  }
  void dozewell_stopTimer() const { objc::send<void, "dozewell_stopTimer">(*this); }

  // Counts down to that date; nil shows no countdown.
  void showEndDate(NSDate end) const;
  // The countdown is the Clock's, which puts its own date, or none, there whenever its timer
  // changes and when the host has launched. The date that was shown last is sent again while it
  // lies ahead: the very object, which the host does not start anew when it still counts down to
  // it.
  static void showEndDateAgain();
};

// The date line, for songs. Main thread.
struct DozewellDateView : SBFLockScreenDateSubtitleDateView {
  using SBFLockScreenDateSubtitleDateView::SBFLockScreenDateSubtitleDateView;

  // The one that the host dated last, kept alive until it dates another; nil before.
  static DozewellDateView newest();
  static void setNewest(SBFLockScreenDateSubtitleDateView view);

  // Puts the songs that are left in place of the date, which the host may draw again at any time.
  void dozewell_setNbTracksLeftText() const {
    objc::send<void, "dozewell_setNbTracksLeftText">(*this);
  }
  void dozewell_setText(NSString text) const { objc::send<void, "dozewell_setText:">(*this, text); }
  void dozewell_restoreOriginalText() const {
    objc::send<void, "dozewell_restoreOriginalText">(*this);
  }
};
