// The device: what its owner can read in Settings.
#pragma once

#include "objc/Class.h"

namespace sim {

struct UIDevice : objc::Implementation<UIDevice> {
  static objc::Object currentDevice();
  objc::Object systemVersion();
  // 2: a Taptic Engine that plays every kind of feedback. Read by key on the platform.
  long feedbackSupportLevel() { return 2; }

  static void registerClass();
};

}  // namespace sim
