#pragma once

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct StatusBarView : objc::Implementation<StatusBarView> {
  static constexpr double height = 47;  // points, as the camera's notch wants it

  objc::Strong<objc::Object> time;     // UILabel
  objc::Strong<objc::Object> symbols;  // UIView

  objc::Object initWithFrame(CGRect frame);
  void layoutSubviews();
  void showTime();

  static void registerClass();
};

}  // namespace sim
