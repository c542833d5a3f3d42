#pragma once

#include "objc/Class.h"

namespace sim {

// Its elements are NSArray's state.
struct NSMutableArray : objc::Implementation<NSMutableArray> {
  static void registerClass();
};

}  // namespace sim
