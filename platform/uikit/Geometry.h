// Points, sizes and rectangles, in points.
#pragma once

#include "objc/Encoding.h"

struct CGPoint {
  double x, y;
};
struct CGSize {
  double width, height;
};
struct CGRect {
  CGPoint origin;
  CGSize size;
};
struct CGAffineTransform {
  double a, b, c, d, tx, ty;
  static constexpr CGAffineTransform identity() { return {1, 0, 0, 1, 0, 0}; }
  static constexpr CGAffineTransform scale(double x, double y) { return {x, 0, 0, y, 0, 0}; }
  // This transform after a translation in its own coordinates, as CGAffineTransformTranslate.
  constexpr CGAffineTransform translated(double x, double y) const {
    return {a, b, c, d, a * x + c * y + tx, b * x + d * y + ty};
  }
  // This transform after a turn whose sine and cosine are given, as CGAffineTransformRotate.
  constexpr CGAffineTransform rotated(double sine, double cosine) const {
    return {a * cosine + c * sine,
            b * cosine + d * sine,
            c * cosine - a * sine,
            d * cosine - b * sine,
            tx,
            ty};
  }
};

constexpr CGRect rect(double x, double y, double width, double height) {
  return {{x, y}, {width, height}};
}

template <>
struct objc::StructEncoding<CGPoint> {
  static constexpr auto value = objc::FixedString("{CGPoint=dd}");
};
template <>
struct objc::StructEncoding<CGSize> {
  static constexpr auto value = objc::FixedString("{CGSize=dd}");
};
template <>
struct objc::StructEncoding<CGRect> {
  static constexpr auto value = objc::FixedString("{CGRect={CGPoint=dd}{CGSize=dd}}");
};
template <>
struct objc::StructEncoding<CGAffineTransform> {
  static constexpr auto value = objc::FixedString("{CGAffineTransform=dddddd}");
};
