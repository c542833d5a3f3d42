#include "tweak/indicators/Dozewell2TimeLeftIndicatorsManager.h"

using Indicators = Dozewell2TimeLeftIndicatorsManager;

Indicators& Dozewell2TimeLeftIndicatorsManager::sharedInstance() {
  return shared();
}

void Dozewell2TimeLeftIndicatorsManager::startTimerWithDate(NSDate) {}

void Dozewell2TimeLeftIndicatorsManager::stopTimer() {}

void Dozewell2TimeLeftIndicatorsManager::updateCounterWithNbTracks() {}

void Dozewell2TimeLeftIndicatorsManager::stopCounter() {}

Class Dozewell2TimeLeftIndicatorsManager::registerClass() {
  return objc::ClassBuilder<Indicators>("Dozewell2TimeLeftIndicatorsManager", "NSObject")
      .classMethod<"sharedInstance", &Indicators::sharedInstance>()
      .method<"startTimerWithDate:", &Indicators::startTimerWithDate>()
      .method<"stopTimer", &Indicators::stopTimer>()
      .method<"updateCounterWithNbTracks", &Indicators::updateCounterWithNbTracks>()
      .method<"stopCounter", &Indicators::stopCounter>()
      .finish();
}
