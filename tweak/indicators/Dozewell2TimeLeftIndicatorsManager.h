// Shows what is left of a running timer: in the panel's label, as the lock screen's countdown (a
// duration) and in the lock screen's date line (songs).
#pragma once

#include "objc/Class.h"
#include "platform/UIKit.h"

// Main thread.
struct Dozewell2TimeLeftIndicatorsManager
    : objc::Implementation<Dozewell2TimeLeftIndicatorsManager> {
  objc::Strong<NSTimer> updateRemainingTimeLabelsTimer;  // nil: not refreshing
  objc::Strong<UILabel> dozewellVcTimeLeftLabel;         // the panel's; nil until it has one

  static Dozewell2TimeLeftIndicatorsManager& sharedInstance();

  void startTimerWithDate(NSDate end);  // may be nil
  void stopTimer();
  void updateCounterWithNbTracks();
  void stopCounter();

  // The label's refresh, once a second while the screen is on.
  void startUpdatingRemainingTimeLabelsInCC();
  void stopUpdatingRemainingTimeLabelsInCC();

  static Class registerClass();

 private:
  void refresh();
  void showRemainingTime();
};
