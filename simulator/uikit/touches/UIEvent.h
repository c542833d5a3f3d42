// What happened to the phone, as the application is told.
#pragma once

#include "objc/Class.h"

namespace sim {

struct UIEvent : objc::Implementation<UIEvent> {
  static void registerClass();
};

}  // namespace sim
