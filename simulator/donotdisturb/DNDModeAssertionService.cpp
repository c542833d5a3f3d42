#include "simulator/donotdisturb/DNDModeAssertionService.h"

#include <string>

#include "simulator/donotdisturb/DNDModeAssertion.h"
#include "simulator/donotdisturb/DNDModeAssertionDetails.h"
#include "simulator/donotdisturb/Focus.h"
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
  if (!details) return nullptr;
  Focus::current().setOn(true);
  return DNDModeAssertion::withDetails(details);
}

void DNDModeAssertionService::invalidateAllActiveModeAssertions(id* error) {
  Phone::current().journal.record("-[DNDModeAssertionService invalidateAllActiveModeAssertions]");
  if (error != nullptr) *error = nullptr;
  Focus::current().setOn(false);
}

void DNDModeAssertionService::registerClass() {
  StandIn<DNDModeAssertionService>("DoNotDisturb", "DNDModeAssertionService", "NSObject")
      .partialClassMethod<"serviceForClientIdentifier:",
                          &DNDModeAssertionService::serviceForClientIdentifier>(
          "a new service each time, for any client")
      .readonlyProperty<"clientIdentifier", &DNDModeAssertionService::clientIdentifier>()
      .partial<"takeModeAssertionWithDetails:error:",
               &DNDModeAssertionService::takeModeAssertionWithDetails_error>(
          "whatever is asked for is shown as Do Not Disturb until it is switched off, and silences "
          "nothing; refused, without an error, is nothing but nil")
      .partial<"invalidateAllActiveModeAssertionsWithError:",
               &DNDModeAssertionService::invalidateAllActiveModeAssertions>("those of every client")
      .finish();
}

}  // namespace sim
