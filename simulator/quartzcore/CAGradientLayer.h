// A layer that is filled with a run of colours.
#pragma once

#include <vector>

#include "objc/Class.h"
#include "simulator/coregraphics/CGColor.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct CAGradientLayer : objc::Implementation<CAGradientLayer> {
  objc::Strong<objc::Object> colors;     // NSArray of CGColor
  objc::Strong<objc::Object> locations;  // NSArray of numbers from 0 to 1; nil: evenly
  CGPoint startPoint{0.5, 0};            // as parts of the bounds
  CGPoint endPoint{0.5, 1};

  struct Stop {
    double at;  // 0 to 1
    ColorComponents color;
  };
  std::vector<Stop> stops() const;

  static void registerClass();
};

}  // namespace sim
