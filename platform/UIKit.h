// UIKit.
#pragma once

#include "platform/Foundation.h"

struct UIDevice : NSObject {
  using NSObject::NSObject;
  static UIDevice currentDevice() {
    return objc::send<UIDevice, "currentDevice">(objc_getClass("UIDevice"));
  }
  NSString systemVersion() const { return objc::send<NSString, "systemVersion">(*this); }
  // Private: 0 none, 1 the first generation of haptics, 2 the current one.
  long feedbackSupportLevel() const {
    return objc::as<NSNumber>(valueForKey("_feedbackSupportLevel"_ns)).integerValue();
  }
};

struct UIViewController : objc::Object {
  using Object::Object;
};

struct UIApplication : objc::Object {
  using Object::Object;
};

struct UIImage : objc::Object {
  using Object::Object;
  enum class RenderingMode : long { automatic = 0, alwaysOriginal = 1, alwaysTemplate = 2 };
  static UIImage imageWithContentsOfFile(NSString path) {  // nil when there is no such image
    return objc::send<UIImage, "imageWithContentsOfFile:">(objc_getClass("UIImage"), path);
  }
  UIImage imageWithRenderingMode(RenderingMode mode) const {
    return objc::send<UIImage, "imageWithRenderingMode:">(*this, mode);
  }
};

struct UILabel : objc::Object {
  using Object::Object;
  void setText(NSString text) const { objc::send<void, "setText:">(*this, text); }
};

struct UIImpactFeedbackGenerator : objc::Object {
  using Object::Object;
  static objc::Strong<UIImpactFeedbackGenerator> make(long style) {
    return objc::adopt(objc::send<UIImpactFeedbackGenerator, "initWithStyle:">(
        objc_alloc(objc_getClass("UIImpactFeedbackGenerator")), style));
  }
  void impactOccurred() const { objc::send<void, "impactOccurred">(*this); }
};

struct UINotificationFeedbackGenerator : objc::Object {
  using Object::Object;
  static objc::Strong<UINotificationFeedbackGenerator> make() {
    return objc::adopt(UINotificationFeedbackGenerator(
        objc_alloc_init(objc_getClass("UINotificationFeedbackGenerator"))));
  }
  void notificationOccurred(long type) const {
    objc::send<void, "notificationOccurred:">(*this, type);
  }
};
