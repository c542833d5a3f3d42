#pragma once

#include "objc/Class.h"

namespace sim {

// Its entries are NSDictionary's state.
struct NSMutableDictionary : objc::Implementation<NSMutableDictionary> {
  static void registerClass();
};

}  // namespace sim
