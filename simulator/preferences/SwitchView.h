// What a switch looks like. The row that it stands in takes the taps.
#pragma once

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct SwitchView : objc::Implementation<SwitchView> {
  static constexpr CGSize size = {51, 31};  // points

  objc::Strong<objc::Object> knob;  // UIView
  bool isOn = false;

  objc::Object initWithFrame(CGRect frame);
  void setOn(bool on);
  void layoutSubviews();

  static void registerClass();
};

}  // namespace sim
