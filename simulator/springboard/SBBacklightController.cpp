#include "simulator/springboard/SBBacklightController.h"

#include "simulator/StandIn.h"

namespace sim {
namespace {

// Outside the object: the screen exists where the class is missing, too.
bool isLit = true;

}  // namespace

objc::Object SBBacklightController::sharedInstance() {
  return objc::Object(shared().self());
}

bool SBBacklightController::screenIsOn() {
  return isLit;
}

void SBBacklightController::setScreenIsOn(bool on) {
  isLit = on;
}

void SBBacklightController::registerClass() {
  StandIn<SBBacklightController>("SpringBoard", "SBBacklightController", "NSObject")
      .classMethod<"sharedInstance", &SBBacklightController::sharedInstance>()
      .method<"screenIsOn", &SBBacklightController::screenIsOn>()
      .finish();
}

}  // namespace sim
