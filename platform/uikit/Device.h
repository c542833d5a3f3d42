// UIKit's view of the device, and its haptics.
#pragma once

#include "platform/Foundation.h"
#include "platform/uikit/Geometry.h"

struct UIDevice : NSObject {
  using NSObject::NSObject;
  static UIDevice currentDevice() {
    return objc::send<UIDevice, "currentDevice">(objc::classNamed<"UIDevice">());
  }
  NSString systemVersion() const { return objc::send<NSString, "systemVersion">(*this); }
  // Whether this is that version of the system or a later one. "14.8.1" is 14.8: what follows the
  // second point is not looked at.
  static bool systemIsAtLeast(float version) {
    return currentDevice().systemVersion().floatValue() >= version;
  }
  // Private: 0 none, 1 the first generation of haptics, 2 the current one.
  long feedbackSupportLevel() const {
    return objc::as<NSNumber>(valueForKey("_feedbackSupportLevel"_ns)).integerValue();
  }
};

struct UIScreen : objc::Object {
  using Object::Object;
  static UIScreen mainScreen() {
    return objc::send<UIScreen, "mainScreen">(objc::classNamed<"UIScreen">());
  }
  CGRect bounds() const { return objc::send<CGRect, "bounds">(*this); }
};

struct UIImpactFeedbackGenerator : objc::Object {
  using Object::Object;
  static Class cls() { return objc::classNamed<"UIImpactFeedbackGenerator">(); }
  static objc::Strong<UIImpactFeedbackGenerator> make(long style) {
    return objc::adopt(
        objc::send<UIImpactFeedbackGenerator, "initWithStyle:">(objc_alloc(cls()), style));
  }
  void impactOccurred() const { objc::send<void, "impactOccurred">(*this); }
};

struct UINotificationFeedbackGenerator : objc::Object {
  using Object::Object;
  static objc::Strong<UINotificationFeedbackGenerator> make() {
    return objc::adopt(UINotificationFeedbackGenerator(
        objc_alloc_init(objc::classNamed<"UINotificationFeedbackGenerator">())));
  }
  void notificationOccurred(long type) const {
    objc::send<void, "notificationOccurred:">(*this, type);
  }
};
