// The root of everything that takes part in event handling.
#pragma once

#include "objc/Class.h"

namespace sim {

struct UIResponder : objc::Implementation<UIResponder> {
  static void registerClass();
};

}  // namespace sim
