// QuartzCore's matrix, row by row. Stand-ins use the part of it that stays in the plane.
#pragma once

#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct CATransform3D {
  double m11 = 1, m12 = 0, m13 = 0, m14 = 0;
  double m21 = 0, m22 = 1, m23 = 0, m24 = 0;
  double m31 = 0, m32 = 0, m33 = 1, m34 = 0;
  double m41 = 0, m42 = 0, m43 = 0, m44 = 1;
  bool operator==(const CATransform3D&) const = default;

  CGAffineTransform affine() const { return {m11, m12, m21, m22, m41, m42}; }
  static CATransform3D ofAffine(const CGAffineTransform& from) {
    CATransform3D made;
    made.m11 = from.a;
    made.m12 = from.b;
    made.m21 = from.c;
    made.m22 = from.d;
    made.m41 = from.tx;
    made.m42 = from.ty;
    return made;
  }
};

}  // namespace sim

template <>
struct objc::StructEncoding<sim::CATransform3D> {
  static constexpr auto value = objc::FixedString("{CATransform3D=dddddddddddddddd}");
};
