// A layer that draws a path.
#pragma once

#include "objc/Class.h"

namespace sim {

struct CAShapeLayer : objc::Implementation<CAShapeLayer> {
  objc::Strong<objc::Object> path;         // CGPath, which nobody here looks into
  objc::Strong<objc::Object> fillColor;    // CGColor
  objc::Strong<objc::Object> strokeColor;  // CGColor; nil draws no line
  double lineWidth = 1;                    // points

  static void registerClass();
};

}  // namespace sim
