// SpringBoard: whether the phone is locked.
#pragma once

#include "objc/Class.h"

namespace sim {

struct SBLockScreenManager : objc::Implementation<SBLockScreenManager> {
  static objc::Object sharedInstance();

  bool isUILocked();

  static void registerClass();
};

}  // namespace sim
