#include "simulator/donotdisturb/BBSettingsGateway.h"

#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"

namespace sim {

void BBSettingsGateway::setBehaviorOverrideStatus(long status) {
  Phone::current().journal.record(
      "-[BBSettingsGateway setBehaviorOverrideStatus:" + notation(status) + ']');
}

void BBSettingsGateway::registerClass() {
  StandIn<BBSettingsGateway>("BulletinBoard", "BBSettingsGateway", "NSObject")
      .partial<"setBehaviorOverrideStatus:", &BBSettingsGateway::setBehaviorOverrideStatus>(
          "nothing is silenced")
      .finish();
}

}  // namespace sim
