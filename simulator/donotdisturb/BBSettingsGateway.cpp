#include "simulator/donotdisturb/BBSettingsGateway.h"

#include "simulator/StandIn.h"
#include "simulator/phone/Phone.h"

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
