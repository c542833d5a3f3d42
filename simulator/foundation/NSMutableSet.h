#pragma once

#include "objc/Class.h"

namespace sim {

// Its members are NSSet's state.
struct NSMutableSet : objc::Implementation<NSMutableSet> {
  static void registerClass();
};

}  // namespace sim
