// What of a layer an animation can change.
#pragma once

#include <array>

#include "simulator/uikit/Geometry.h"

namespace sim {

struct LayerValues {
  CGRect bounds;
  CGPoint position;
  CGAffineTransform transform;
  double opacity = 1;
  std::array<double, 4> backgroundColor{};  // red, green, blue, alpha
  double cornerRadius = 0;                  // points
  double backdropBlur = 0;                  // points
  bool operator==(const LayerValues&) const = default;
};

// The same numbers in a row, for sums over all of them.
using LayerNumbers = std::array<double, sizeof(LayerValues) / sizeof(double)>;

}  // namespace sim
