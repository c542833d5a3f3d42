#pragma once

#include <vector>

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct StatusBarView : objc::Implementation<StatusBarView> {
  static constexpr double height = 47;  // points, as the camera's notch wants it

  objc::Strong<objc::Object> time;                  // UILabel
  objc::Strong<objc::Object> symbols;               // UIView
  objc::Strong<objc::Object> bars;                  // CAShapeLayer: the mobile network
  objc::Strong<objc::Object> plane;                 // and what stands there in airplane mode
  objc::Strong<objc::Object> waves;                 // Wi-Fi
  std::vector<objc::Strong<objc::Object>> battery;  // CAShapeLayer
  objc::Strong<objc::Object> moon;                  // Do Not Disturb, beside the time

  objc::Object initWithFrame(CGRect frame);
  void layoutSubviews();
  // Both of this moment; they ask for no layout.
  void showTime();
  void showState();

  static void registerClass();

 private:
  void turnSymbolsRound();
};

}  // namespace sim
