// The event of a shaken phone.
#pragma once

#include "objc/Class.h"

namespace sim {

struct UIMotionEvent : objc::Implementation<UIMotionEvent> {
  int shakeState = 0;  // 1 while the phone is being shaken

  static void registerClass();
};

}  // namespace sim
