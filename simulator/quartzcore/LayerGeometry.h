// Where a layer stands in its superlayer. The frame is no value of its own: it follows from the
// others.
#pragma once

#include "simulator/quartzcore/CATransform3D.h"

namespace sim {

struct LayerGeometry {
  CGRect bounds;                  // in the layer's own coordinates
  CGPoint position;               // of the anchor point, in the superlayer's coordinates
  CGPoint anchorPoint{0.5, 0.5};  // as parts of the bounds
  CATransform3D transform;        // about the anchor point

  // The box around what the superlayer sees of the bounds.
  CGRect frame() const;
  // Moves and resizes, so that frame() becomes this; the transform stays.
  void setFrame(const CGRect& frame);

  CGPoint toSuperlayer(CGPoint point) const;
  CGPoint fromSuperlayer(CGPoint point) const;

 private:
  CGPoint anchor() const;  // in the layer's own coordinates
};

}  // namespace sim
