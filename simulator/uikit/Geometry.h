// CoreGraphics' structures, in points, as they cross messages.
#pragma once

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
