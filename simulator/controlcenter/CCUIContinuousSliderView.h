// ControlCenterUIKit: a level that fills its module from below, and follows a finger up and down.
#pragma once

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct CCUIContinuousSliderView : objc::Implementation<CCUIContinuousSliderView> {
  objc::Object initWithFrame(CGRect frame);
  void layoutSubviews();

  static void registerClass();
};

}  // namespace sim
