// What a scheduled PCSimpleTimer waits with: here it only tells when.
#pragma once

#include "objc/Class.h"

namespace sim {

struct PCDispatchTimer : objc::Implementation<PCDispatchTimer> {
  objc::Strong<objc::Object> fireDate;  // NSDate, of the wall clock

  static void registerClass();
};

}  // namespace sim
