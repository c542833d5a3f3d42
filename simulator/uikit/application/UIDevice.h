// The device: what its owner can read in Settings.
#pragma once

#include "objc/Class.h"

namespace sim {

struct UIDevice : objc::Implementation<UIDevice> {
  static objc::Object currentDevice();
  objc::Object systemVersion();
  // 0 none, 1 a first Taptic Engine, which plays system sounds alone, 2 one that plays every kind
  // of feedback. Read by key on the platform.
  long feedbackSupportLevel();

  static void registerClass();
};

}  // namespace sim
