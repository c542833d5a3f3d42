// Buzzes that tell how something went.
#pragma once

#include "objc/Class.h"

namespace sim {

struct UINotificationFeedbackGenerator : objc::Implementation<UINotificationFeedbackGenerator> {
  void notificationOccurred(long type);  // 0 success, 1 warning, 2 error

  static void registerClass();
};

}  // namespace sim
