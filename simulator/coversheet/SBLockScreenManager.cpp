#include "simulator/coversheet/SBLockScreenManager.h"

#include "simulator/coversheet/LockScreen.h"
#include "simulator/standin/StandIn.h"

namespace sim {

objc::Object SBLockScreenManager::sharedInstance() {
  return objc::Object(shared().self());
}

bool SBLockScreenManager::isUILocked() {
  return LockScreen::current().isLocked();
}

void SBLockScreenManager::registerClass() {
  StandIn<SBLockScreenManager>("SpringBoard", "SBLockScreenManager", "NSObject")
      .classMethod<"sharedInstance", &SBLockScreenManager::sharedInstance>()
      .partial<"isUILocked", &SBLockScreenManager::isUILocked>("a new host begins unlocked")
      .finish();
}

}  // namespace sim
