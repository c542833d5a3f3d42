#include "simulator/donotdisturb/BBSettingsGateway.h"

#include "simulator/donotdisturb/Focus.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"

namespace sim {

void BBSettingsGateway::setBehaviorOverrideStatus(long status) {
  Phone::current().journal.record(
      "-[BBSettingsGateway setBehaviorOverrideStatus:" + notation(status) + ']');
  Focus::current().setOn(status == 1);
}

void BBSettingsGateway::registerClass() {
  StandIn<BBSettingsGateway>("BulletinBoard", "BBSettingsGateway", "NSObject")
      .partial<"setBehaviorOverrideStatus:", &BBSettingsGateway::setBehaviorOverrideStatus>(
          "the phone only shows it: nothing is silenced")
      .finish();
}

}  // namespace sim
