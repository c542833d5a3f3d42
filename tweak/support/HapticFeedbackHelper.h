// Taps and buzzes.
#pragma once

#include "objc/Class.h"
#include "platform/UIKit.h"

struct HapticFeedbackHelper : objc::Implementation<HapticFeedbackHelper> {
  static void sendImpact();  // light
  static void sendImpactWithStyle(long style);
  static void sendImpactWithNotificationType(long type);

  static Class registerClass();
};
