// CoreGraphics' structures, in points, as they cross messages.
#pragma once

#include <cmath>

#include "objc/Encoding.h"

namespace sim {

struct CGPoint {
  double x = 0;
  double y = 0;
  bool operator==(const CGPoint&) const = default;
};

struct CGSize {
  double width = 0;
  double height = 0;
  bool operator==(const CGSize&) const = default;
};

struct CGRect {
  CGPoint origin;
  CGSize size;
  bool operator==(const CGRect&) const = default;

  bool contains(CGPoint point) const {
    return point.x >= origin.x && point.y >= origin.y && point.x < origin.x + size.width &&
           point.y < origin.y + size.height;
  }
};

// x' = a x + c y + tx, y' = b x + d y + ty
struct CGAffineTransform {
  double a = 1;
  double b = 0;
  double c = 0;
  double d = 1;
  double tx = 0;
  double ty = 0;
  bool operator==(const CGAffineTransform&) const = default;

  CGPoint apply(CGPoint point) const {
    return {a * point.x + c * point.y + tx, b * point.x + d * point.y + ty};
  }
  // This one, and after it the other.
  CGAffineTransform then(const CGAffineTransform& next) const {
    const CGPoint moved = next.apply(CGPoint{tx, ty});
    return {next.a * a + next.c * b,
            next.b * a + next.d * b,
            next.a * c + next.c * d,
            next.b * c + next.d * d,
            moved.x,
            moved.y};
  }
  double determinant() const { return a * d - b * c; }
  bool canBeInverted() const { return determinant() != 0; }
  // Itself where it cannot be inverted.
  CGAffineTransform inverse() const {
    if (!canBeInverted()) return *this;
    const double determinant = this->determinant();
    return {d / determinant,
            -b / determinant,
            -c / determinant,
            a / determinant,
            (c * ty - d * tx) / determinant,
            (b * tx - a * ty) / determinant};
  }
  // The bounding box of the transformed rectangle.
  CGRect apply(CGRect rect) const {
    const CGPoint centre =
        apply(CGPoint{rect.origin.x + rect.size.width / 2, rect.origin.y + rect.size.height / 2});
    const CGSize box = {
        std::abs(a) * std::abs(rect.size.width) + std::abs(c) * std::abs(rect.size.height),
        std::abs(b) * std::abs(rect.size.width) + std::abs(d) * std::abs(rect.size.height)};
    return {{centre.x - box.width / 2, centre.y - box.height / 2}, box};
  }
};

}  // namespace sim

template <>
struct objc::StructEncoding<sim::CGPoint> {
  static constexpr auto value = objc::FixedString("{CGPoint=dd}");
};
template <>
struct objc::StructEncoding<sim::CGSize> {
  static constexpr auto value = objc::FixedString("{CGSize=dd}");
};
template <>
struct objc::StructEncoding<sim::CGRect> {
  static constexpr auto value = objc::FixedString("{CGRect={CGPoint=dd}{CGSize=dd}}");
};
template <>
struct objc::StructEncoding<sim::CGAffineTransform> {
  static constexpr auto value = objc::FixedString("{CGAffineTransform=dddddd}");
};
