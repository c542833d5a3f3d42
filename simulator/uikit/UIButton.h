// A button, so far without a title.
#pragma once

#include "objc/Class.h"

namespace sim {

struct UIButton : objc::Implementation<UIButton> {
  static void registerClass();
};

}  // namespace sim
