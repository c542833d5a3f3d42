#pragma once

#include "objc/Class.h"

namespace sim {

struct NSFileManager : objc::Implementation<NSFileManager> {
  static void registerClass();
};

}  // namespace sim
