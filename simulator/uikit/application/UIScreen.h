#pragma once

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct UIScreen : objc::Implementation<UIScreen> {
  static constexpr double mainScale = 3;          // pixels per point
  static constexpr CGSize mainSize = {390, 844};  // points, upright

  static objc::Object mainScreen();  // the one object, never freed; nil without the class
  static CGSize size();              // points, as the interface is turned
  // Also where the class is missing there is a screen.
  static bool isLit();
  static void setLit(bool isOn);
  CGRect bounds() { return {{0, 0}, size()}; }
  CGRect nativeBounds() {  // pixels
    return {{0, 0}, {mainSize.width * mainScale, mainSize.height * mainScale}};
  }
  double scale() { return mainScale; }

  static void registerClass();
};

}  // namespace sim
