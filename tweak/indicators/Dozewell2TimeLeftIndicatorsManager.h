// Shows what is left of a running timer. It shows nothing yet.
#pragma once

#include "objc/Class.h"
#include "platform/Foundation.h"

struct Dozewell2TimeLeftIndicatorsManager
    : objc::Implementation<Dozewell2TimeLeftIndicatorsManager> {
  static Dozewell2TimeLeftIndicatorsManager& sharedInstance();

  void startTimerWithDate(NSDate fireDate);  // may be nil
  void stopTimer();
  void updateCounterWithNbTracks();
  void stopCounter();

  static Class registerClass();
};
