// A control, so far without actions.
#pragma once

#include "objc/Class.h"

namespace sim {

struct UIControl : objc::Implementation<UIControl> {
  static void registerClass();
};

}  // namespace sim
