// CoverSheet, SpringBoardFoundation and ControlCenterUI (all private): the lock screen and the
// containers of Control Center's modules.
#pragma once

#include "platform/UIKit.h"

// The countdown on the lock screen.
struct CSTimerViewController : UIViewController {
  using UIViewController::UIViewController;
  static Class cls() { return objc::classNamed<"CSTimerViewController">(); }
  void setEndDate(NSDate end) const {  // nil removes the countdown
    objc::send<void, "setEndDate:">(*this, end);
  }
};

struct SBUILegibilityLabel : objc::Object {
  using Object::Object;
  void setString(NSString text) const { objc::send<void, "setString:">(*this, text); }
};

// The line under the lock screen's clock.
struct SBFLockScreenDateSubtitleDateView : NSObject {
  using NSObject::NSObject;
  static Class cls() { return objc::classNamed<"SBFLockScreenDateSubtitleDateView">(); }
  SBUILegibilityLabel label() const {
    return objc::as<SBUILegibilityLabel>(valueForKey("_label"_ns));
  }
  void setDate(NSDate date) const { objc::send<void, "setDate:">(*this, date); }
  void sizeToFit() const { objc::send<void, "sizeToFit">(*this); }
};

struct CCUIContentModuleContainerViewController : UIViewController {
  using UIViewController::UIViewController;
  NSString moduleIdentifier() const { return objc::send<NSString, "moduleIdentifier">(*this); }
};
