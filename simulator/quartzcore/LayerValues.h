// What of a layer an animation can change.
#pragma once

#include <array>

#include "simulator/coregraphics/Geometry.h"

namespace sim {

// What changes number by number.
struct LayerMeasures {
  CGRect bounds;
  CGPoint position;
  double opacity = 1;
  std::array<double, 4> backgroundColor{};  // red, green, blue, alpha
  double cornerRadius = 0;                  // points
  double backdropBlur = 0;                  // points
  bool operator==(const LayerMeasures&) const = default;
};

// The same numbers in a row, for sums over all of them.
using LayerNumbers = std::array<double, sizeof(LayerMeasures) / sizeof(double)>;

struct LayerValues : LayerMeasures {
  CGAffineTransform transform;
  bool operator==(const LayerValues&) const = default;
};

}  // namespace sim
