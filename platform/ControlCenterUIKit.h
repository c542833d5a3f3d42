// ControlCenterUIKit (private): glyph packages of Control Center's buttons.
#pragma once

#include "platform/QuartzCore.h"

// The classes are passed in: their caller looks them up once and keeps them.
struct CCUICAPackageDescription : objc::Object {
  using Object::Object;
  static objc::Strong<CCUICAPackageDescription> make(Class cls, NSString name, NSBundle bundle) {
    return objc::adopt(objc::send<CCUICAPackageDescription, "initWithPackageName:inBundle:">(
        objc_alloc(cls), name, bundle));
  }
  CAPackage package(Class packageClass) const {
    return objc::send<CAPackage, "ccuiPackageFromDescription:">(packageClass, *this);
  }
};

struct CCUICAPackageView : UIView {
  using UIView::UIView;
  static objc::Strong<CCUICAPackageView> make(Class cls, CGRect frame) {
    return objc::adopt(objc::send<CCUICAPackageView, "initWithFrame:">(objc_alloc(cls), frame));
  }
  void setPackage(CAPackage package) const { objc::send<void, "setPackage:">(*this, package); }
  void setScale(double scale) const { objc::send<void, "setScale:">(*this, scale); }
};
