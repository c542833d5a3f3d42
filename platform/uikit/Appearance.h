// UIKit's colours, fonts and images.
#pragma once

#include "platform/Foundation.h"

struct UIColor : objc::Object {
  using Object::Object;
  static UIColor white() { return named<"whiteColor">(); }
  static UIColor black() { return named<"blackColor">(); }
  static UIColor clear() { return named<"clearColor">(); }
  static UIColor rgb(double red, double green, double blue, double alpha) {  // 0 to 1 each
    return objc::send<UIColor, "colorWithRed:green:blue:alpha:">(objc::classNamed<"UIColor">(), red,
                                                                 green, blue, alpha);
  }
  UIColor withAlpha(double alpha) const {
    return objc::send<UIColor, "colorWithAlphaComponent:">(*this, alpha);
  }
  id CGColor() const { return objc::send<id, "CGColor">(*this); }

 private:
  template <objc::FixedString Name>
  static UIColor named() {
    return objc::send<UIColor, Name>(objc::classNamed<"UIColor">());
  }
};

struct UIFont : objc::Object {
  using Object::Object;
  static constexpr double weightLight = -0.4, weightSemibold = 0.3;
  static UIFont system(double points) {
    return objc::send<UIFont, "systemFontOfSize:">(objc::classNamed<"UIFont">(), points);
  }
  static UIFont system(double points, double weight) {
    return objc::send<UIFont, "systemFontOfSize:weight:">(objc::classNamed<"UIFont">(), points,
                                                          weight);
  }
  // All digits as wide as each other.
  static UIFont monospacedDigitSystem(double points, double weight) {
    return objc::send<UIFont, "monospacedDigitSystemFontOfSize:weight:">(
        objc::classNamed<"UIFont">(), points, weight);
  }
  double pointSize() const { return objc::send<double, "pointSize">(*this); }
};

struct UIImage : objc::Object {
  using Object::Object;
  enum class RenderingMode : long { automatic = 0, alwaysOriginal = 1, alwaysTemplate = 2 };
  static UIImage imageWithContentsOfFile(NSString path) {  // nil when there is no such image
    return objc::send<UIImage, "imageWithContentsOfFile:">(objc::classNamed<"UIImage">(), path);
  }
  UIImage imageWithRenderingMode(RenderingMode mode) const {
    return objc::send<UIImage, "imageWithRenderingMode:">(*this, mode);
  }
  // One that is mirrored where the interface runs from right to left.
  UIImage imageFlippedForRightToLeftLayoutDirection() const {
    return objc::send<UIImage, "imageFlippedForRightToLeftLayoutDirection">(*this);
  }
};
