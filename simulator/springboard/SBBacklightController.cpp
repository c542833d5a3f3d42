#include "simulator/springboard/SBBacklightController.h"

#include "simulator/standin/StandIn.h"
#include "simulator/uikit/application/UIScreen.h"

namespace sim {

objc::Object SBBacklightController::sharedInstance() {
  return objc::Object(shared().self());
}

bool SBBacklightController::screenIsOn() {
  return UIScreen::isLit();
}

void SBBacklightController::setScreenIsOn(bool on) {
  UIScreen::setLit(on);
}

void SBBacklightController::registerClass() {
  StandIn<SBBacklightController>("SpringBoard", "SBBacklightController", "NSObject")
      .classMethod<"sharedInstance", &SBBacklightController::sharedInstance>()
      .partial<"screenIsOn", &SBBacklightController::screenIsOn>("there is no always-on display")
      .finish();
}

}  // namespace sim
