#include "simulator/donotdisturb/DNDModeAssertionDetails.h"

#include "simulator/standin/StandIn.h"

namespace sim {

objc::Object DNDModeAssertionDetails::userRequestedWithIdentifier_mode_lifetime(
    objc::Object identifier, objc::Object modeIdentifier, objc::Object lifetime) {
  auto made = make();
  auto& details = of(made.get());
  details.identifier = objc::adopt(objc::send<objc::Object, "copy">(identifier));
  details.modeIdentifier = objc::adopt(objc::send<objc::Object, "copy">(modeIdentifier));
  details.lifetime = objc::retain(lifetime);
  return objc::autorelease(std::move(made));
}

void DNDModeAssertionDetails::registerClass() {
  StandIn<DNDModeAssertionDetails>("DoNotDisturb", "DNDModeAssertionDetails", "NSObject")
      .classMethod<"userRequestedAssertionDetailsWithIdentifier:modeIdentifier:lifetime:",
                   &DNDModeAssertionDetails::userRequestedWithIdentifier_mode_lifetime>()
      .readonlyProperty<"identifier", &DNDModeAssertionDetails::identifier>()
      .readonlyProperty<"modeIdentifier", &DNDModeAssertionDetails::modeIdentifier>()
      .readonlyProperty<"lifetime", &DNDModeAssertionDetails::lifetime>()
      .finish();
}

}  // namespace sim
