// SpringBoardFoundation: the picture behind the home screen and the lock screen: a clear night.
#pragma once

#include <vector>

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct SBFWallpaperView : objc::Implementation<SBFWallpaperView> {
  objc::Strong<objc::Object> stars, moon, farHills, nearHills;  // CAShapeLayer

  objc::Object initWithFrame(CGRect frame);
  void layoutSubviews();

  static void registerClass();
};

}  // namespace sim
