#include "simulator/donotdisturb/DNDModeAssertion.h"

#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"

namespace sim {

objc::Object DNDModeAssertion::withDetails(objc::Object details) {
  auto assertion = make();
  if (!assertion) return nullptr;
  of(assertion.get()).details = objc::retain(details);
  of(assertion.get()).startDate = objc::retain(date(Phone::current().clock.wall()));
  return objc::autorelease(std::move(assertion));
}

void DNDModeAssertion::registerClass() {
  StandIn<DNDModeAssertion>("DoNotDisturb", "DNDModeAssertion", "NSObject")
      .readonlyProperty<"details", &DNDModeAssertion::details>()
      .readonlyProperty<"startDate", &DNDModeAssertion::startDate>()
      .finish();
}

}  // namespace sim
