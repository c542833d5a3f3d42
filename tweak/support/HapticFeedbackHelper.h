// Taps and buzzes. A phone that cannot make one stays still.
#pragma once

#include "objc/Registration.h"
#include "platform/Foundation.h"

// Main thread.
struct HapticFeedbackHelper : NSObject {
  using NSObject::NSObject;

  static void sendImpact() { objc::send<void, "sendImpact">(cls()); }  // a light tap
  // A UINotificationFeedbackType: 0 success, 1 warning, 2 error. The first generation of haptics
  // has one buzz for all of them.
  static void sendImpactWithNotificationType(long type) {
    objc::send<void, "sendImpactWithNotificationType:">(cls(), type);
  }

  static Class cls();  // nil until it is registered
  static objc::Registration registerClass();
};
