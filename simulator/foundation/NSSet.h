// NSSet and, on top of its state, NSMutableSet.
#pragma once

#include "objc/Class.h"
#include "simulator/foundation/KeyTable.h"

namespace sim {

struct NSSet : objc::Implementation<NSSet> {
  KeyTable table;  // keys alone

  static void registerClass();
};

}  // namespace sim
