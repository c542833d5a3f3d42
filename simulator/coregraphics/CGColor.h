#pragma once

#include <array>
#include <string>

#include "objc/Class.h"

namespace sim {

// Red, green, blue and alpha, or white and alpha, from 0 to 1.
struct ColorComponents {
  std::array<double, 4> values{};
  bool isGray = false;  // values: white three times, alpha
  bool operator==(const ColorComponents&) const = default;

  unsigned long hash() const;
  std::string description() const;  // "UIExtendedSRGBColorSpace 0 0.478 1 1"
};

// CoreGraphics' colour: on the platform a CoreFoundation object, which is an object, too.
struct CGColor : objc::Implementation<CGColor> {
  ColorComponents color;

  objc::Object components() const;  // NSArray of numbers, alpha last
  bool isEqual(objc::Object other) const;
  unsigned long hash() const;
  objc::Object description() const;

  static void registerClass();
};

}  // namespace sim
