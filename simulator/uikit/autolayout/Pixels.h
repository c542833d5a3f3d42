#pragma once

#include <cmath>

#include "simulator/coregraphics/Geometry.h"
#include "simulator/uikit/application/UIScreen.h"

namespace sim {

// Points, on the border of two pixels of the screen.
inline double onPixel(double points) {
  return std::floor(points * UIScreen::mainScale + 0.5) / UIScreen::mainScale;
}

// Edges, not sizes, are rounded: so neighbours keep touching each other.
inline CGRect onPixels(const CGRect& rect) {
  const double left = onPixel(rect.origin.x), top = onPixel(rect.origin.y);
  return {{left, top},
          {onPixel(rect.origin.x + rect.size.width) - left,
           onPixel(rect.origin.y + rect.size.height) - top}};
}

}  // namespace sim
