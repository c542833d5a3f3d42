// Do Not Disturb, in both generations.
#include "simulator/donotdisturb/BBSettingsGateway.h"
#include "simulator/donotdisturb/DNDModeAssertion.h"
#include "simulator/donotdisturb/DNDModeAssertionDetails.h"
#include "simulator/donotdisturb/DNDModeAssertionService.h"
#include "simulator/donotdisturb/Focus.h"
#include "simulator/standin/Registration.h"

namespace sim {

void registerDoNotDisturb() {
  Focus::current();  // exists before a restart's saved state is given back to it
  DNDModeAssertionDetails::registerClass();
  DNDModeAssertion::registerClass();
  DNDModeAssertionService::registerClass();
  BBSettingsGateway::registerClass();
}

}  // namespace sim
