#pragma once

#include "objc/Class.h"

namespace sim {

struct NSNull : objc::Implementation<NSNull> {
  static objc::Object null();  // the one object, never freed
  static void registerClass();
};

}  // namespace sim
