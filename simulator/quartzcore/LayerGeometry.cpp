#include "simulator/quartzcore/LayerGeometry.h"

namespace sim {

CGPoint LayerGeometry::anchor() const {
  return {bounds.origin.x + anchorPoint.x * bounds.size.width,
          bounds.origin.y + anchorPoint.y * bounds.size.height};
}

CGRect LayerGeometry::frame() const {
  // Without a transform the way through the centre would cost precision.
  if (transform == CATransform3D())
    return {{position.x - anchorPoint.x * bounds.size.width,
             position.y - anchorPoint.y * bounds.size.height},
            bounds.size};
  const CGPoint middle = anchor();
  const CGRect aroundAnchor = {{bounds.origin.x - middle.x, bounds.origin.y - middle.y},
                               bounds.size};
  CGRect box = transform.affine().apply(aroundAnchor);
  box.origin = {box.origin.x + position.x, box.origin.y + position.y};
  return box;
}

void LayerGeometry::setFrame(const CGRect& wanted) {
  bounds.size = wanted.size;
  if (!(transform == CATransform3D()))
    bounds.size = transform.affine().inverse().apply(CGRect{{}, wanted.size}).size;
  position = {anchorPoint.x * bounds.size.width, anchorPoint.y * bounds.size.height};
  const CGPoint reached = frame().origin;
  position = {position.x + wanted.origin.x - reached.x, position.y + wanted.origin.y - reached.y};
}

CGPoint LayerGeometry::toSuperlayer(CGPoint point) const {
  const CGPoint middle = anchor();
  const CGPoint moved = transform.affine().apply(CGPoint{point.x - middle.x, point.y - middle.y});
  return {moved.x + position.x, moved.y + position.y};
}

CGPoint LayerGeometry::fromSuperlayer(CGPoint point) const {
  const CGPoint middle = anchor();
  const CGPoint moved =
      transform.affine().inverse().apply(CGPoint{point.x - position.x, point.y - position.y});
  return {moved.x + middle.x, moved.y + middle.y};
}

}  // namespace sim
