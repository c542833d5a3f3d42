// ControlCenterUIKit (private): glyph packages of Control Center's buttons.
#pragma once

#include "platform/QuartzCore.h"

struct CCUICAPackageDescription : objc::Object {
  using Object::Object;
  static objc::Strong<CCUICAPackageDescription> make(NSString name, NSBundle bundle) {
    return objc::adopt(objc::send<CCUICAPackageDescription, "initWithPackageName:inBundle:">(
        objc_alloc(objc::classNamed<"CCUICAPackageDescription">()), name, bundle));
  }
  CAPackage package() const {
    return objc::send<CAPackage, "ccuiPackageFromDescription:">(objc::classNamed<"CAPackage">(),
                                                                *this);
  }
};

struct CCUICAPackageView : UIView {
  using UIView::UIView;
  static objc::Strong<CCUICAPackageView> make(CGRect frame) {
    return objc::adopt(objc::send<CCUICAPackageView, "initWithFrame:">(
        objc_alloc(objc::classNamed<"CCUICAPackageView">()), frame));
  }
  void setPackage(CAPackage package) const { objc::send<void, "setPackage:">(*this, package); }
  void setScale(double scale) const { objc::send<void, "setScale:">(*this, scale); }
};
