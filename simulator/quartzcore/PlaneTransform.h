// A transform of the plane taken apart, as animations and key paths see it: scaled, then sheared,
// then turned, then moved.
#pragma once

#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct PlaneTransform {
  CGPoint scale{1, 1};  // one of them is negative in a mirror image
  double shear = 0;     // how far a point goes to the right for each point that it lies lower
  double turn = 0;      // radians, clockwise; -pi to pi
  CGPoint move;

  PlaneTransform() = default;
  // Of all the ways to take it apart, one that turns by no more than half a turn.
  explicit PlaneTransform(const CGAffineTransform& from);

  CGAffineTransform whole() const;
};

}  // namespace sim
