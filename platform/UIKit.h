// UIKit.
#pragma once

#include "platform/Foundation.h"

struct UIDevice : objc::Object {
  using Object::Object;
  static UIDevice currentDevice() {
    return objc::send<UIDevice, "currentDevice">(objc_getClass("UIDevice"));
  }
  NSString systemVersion() const { return objc::send<NSString, "systemVersion">(*this); }
};

struct UIViewController : objc::Object {
  using Object::Object;
};

struct UIApplication : objc::Object {
  using Object::Object;
};
