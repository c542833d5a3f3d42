#include "simulator/quartzcore/PlaneTransform.h"

#include <cmath>

namespace sim {

PlaneTransform::PlaneTransform(const CGAffineTransform& from) : move{from.tx, from.ty} {
  const bool isMirrored = from.determinant() < 0;
  const double length = std::hypot(from.a, from.b);
  // A mirror image keeps the axis that points its own way: without this, one that is mirrored from
  // left to right would be upside down and turned by half a turn.
  scale.x = isMirrored && from.a < from.d ? -length : length;
  if (length == 0) {
    scale.y = std::hypot(from.c, from.d);
    turn = std::atan2(-from.c, from.d);
    return;
  }
  const double cosine = from.a / scale.x;
  const double sine = from.b / scale.x;
  scale.y = cosine * from.d - sine * from.c;
  shear = cosine * from.c + sine * from.d;
  turn = std::atan2(sine, cosine);
}

CGAffineTransform PlaneTransform::whole() const {
  const double cosine = std::cos(turn);
  const double sine = std::sin(turn);
  return {scale.x * cosine,
          scale.x * sine,
          shear * cosine - scale.y * sine,
          shear * sine + scale.y * cosine,
          move.x,
          move.y};
}

}  // namespace sim
