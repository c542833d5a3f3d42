// Shows what is left of a running timer: in the panel's label, as the lock screen's countdown (a
// duration) and in the lock screen's date line (songs).
#pragma once

#include "objc/Registration.h"
#include "platform/UIKit.h"

// Main thread.
struct Dozewell2TimeLeftIndicatorsManager : NSObject {
  using NSObject::NSObject;

  static Dozewell2TimeLeftIndicatorsManager sharedInstance() {
    return objc::send<Dozewell2TimeLeftIndicatorsManager, "sharedInstance">(cls());
  }

  // The panel's label, which is kept. nil: there is none to write to.
  void setDozewellVcTimeLeftLabel(UILabel label) const {
    objc::send<void, "setDozewellVcTimeLeftLabel:">(*this, label);
  }

  // A duration has started; it ends then. nil shows no countdown.
  void startTimerWithDate(NSDate end) const { objc::send<void, "startTimerWithDate:">(*this, end); }
  void stopTimer() const { objc::send<void, "stopTimer">(*this); }
  // A number of songs has started, or one of them has passed.
  void updateCounterWithNbTracks() const { objc::send<void, "updateCounterWithNbTracks">(*this); }
  void stopCounter() const { objc::send<void, "stopCounter">(*this); }

  // The label's refresh, once a second while the screen is on.
  void startUpdatingRemainingTimeLabelsInCC() const {
    objc::send<void, "startUpdatingRemainingTimeLabelsInCC">(*this);
  }
  void stopUpdatingRemainingTimeLabelsInCC() const {
    objc::send<void, "stopUpdatingRemainingTimeLabelsInCC">(*this);
  }

  static Class cls();  // nil until it is registered
  static objc::Registration registerClass();
};
