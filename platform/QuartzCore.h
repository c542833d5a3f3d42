// QuartzCore's shape layers, and CAPackage (private).
#pragma once

#include "platform/uikit/View.h"

struct CAShapeLayer : CALayer {
  using CALayer::CALayer;
  static Class cls() { return objc::classNamed<"CAShapeLayer">(); }
  void setFillColor(id color) const {  // a CGColorRef
    objc::send<void, "setFillColor:">(*this, color);
  }
};

struct CAPackage : objc::Object {
  using Object::Object;
};
