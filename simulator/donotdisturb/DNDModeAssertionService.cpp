#include "simulator/donotdisturb/DNDModeAssertionService.h"

#include <string>

#include "simulator/donotdisturb/DNDModeAssertion.h"
#include "simulator/donotdisturb/DNDModeAssertionDetails.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

std::string shown(objc::Object details) {
  const auto* state = stateOf<DNDModeAssertionDetails>(details);
  if (state == nullptr) return notation(details);
  return notation(state->identifier.get()) + ' ' + notation(state->modeIdentifier.get()) + ' ' +
         notation(state->lifetime.get());
}

}  // namespace

objc::Object DNDModeAssertionService::serviceForClientIdentifier(objc::Object client) {
  auto made = make();
  of(made.get()).clientIdentifier = objc::adopt(objc::send<objc::Object, "copy">(client));
  return objc::autorelease(std::move(made));
}

objc::Object DNDModeAssertionService::takeModeAssertionWithDetails_error(objc::Object details,
                                                                         id* error) {
  Phone::current().journal.record(
      "-[DNDModeAssertionService takeModeAssertionWithDetails:" + shown(details) + ']');
  if (error != nullptr) *error = nullptr;
  return details ? DNDModeAssertion::withDetails(details) : nullptr;
}

void DNDModeAssertionService::registerClass() {
  StandIn<DNDModeAssertionService>("DoNotDisturb", "DNDModeAssertionService", "NSObject")
      .partialClassMethod<"serviceForClientIdentifier:",
                          &DNDModeAssertionService::serviceForClientIdentifier>(
          "a new service each time, for any client")
      .readonlyProperty<"clientIdentifier", &DNDModeAssertionService::clientIdentifier>()
      .partial<"takeModeAssertionWithDetails:error:",
               &DNDModeAssertionService::takeModeAssertionWithDetails_error>(
          "no mode begins; refused, without an error, is nothing but nil")
      .finish();
}

}  // namespace sim
