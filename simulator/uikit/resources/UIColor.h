#pragma once

#include "objc/Class.h"
#include "simulator/coregraphics/CGColor.h"

namespace sim {

struct UIColor : objc::Implementation<UIColor> {
  ColorComponents components;

  objc::Object colorWithAlphaComponent(double alpha) const;
  objc::Object coreGraphicsColor() const;  // CGColor, autoreleased
  bool isEqual(objc::Object other) const;
  unsigned long hash() const;
  objc::Object description() const;

  // Autoreleased.
  static objc::Object systemBlue();

  static void registerClass();
};

}  // namespace sim
