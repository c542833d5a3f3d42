// ControlCenterUIKit: a level that fills its module from below, and follows a finger up and down.
#pragma once

#include "objc/Class.h"

namespace sim {

struct CCUIContinuousSliderView : objc::Implementation<CCUIContinuousSliderView> {
  void layoutSubviews();
  bool beginTracking(objc::Object touch, objc::Object event);
  bool continueTracking(objc::Object touch, objc::Object event);

  static void registerClass();

 private:
  double fingerAt(objc::Object touch) const;  // y

  float heldFrom_ = 0;  // the value when a finger came down
  double fingerFrom_ = 0;
};

}  // namespace sim
