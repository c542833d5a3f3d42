// BulletinBoard: the Do Not Disturb switch of older systems.
#pragma once

#include "objc/Class.h"

namespace sim {

struct BBSettingsGateway : objc::Implementation<BBSettingsGateway> {
  void setBehaviorOverrideStatus(long status);  // 1 on, 0 off

  static void registerClass();
};

}  // namespace sim
