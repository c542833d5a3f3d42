#pragma once

#include "objc/Class.h"
#include "simulator/uikit/Geometry.h"

namespace sim {

struct UISlider : objc::Implementation<UISlider> {
  float minimumValue = 0;
  float maximumValue = 1;
  float value = 0;
  objc::Strong<objc::Object> track;
  objc::Strong<objc::Object> filled;

  objc::Object initWithFrame(CGRect frame);
  void setValue(float to);  // held to the limits; no action is sent
  void setValueAnimated(float to, bool animated);
  void layoutSubviews();
  // A finger drags the knob there: its actions are sent.
  void userSlides(float to);

  static void registerClass();
};

}  // namespace sim
