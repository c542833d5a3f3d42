// The shapes on the module's buttons, as paths in a square of glyphSize points.
#pragma once

#include <vector>

#include "objc/Ownership.h"
#include "simulator/coregraphics/CGPath.h"

namespace sim {

inline constexpr double glyphSize = 36;  // points

using Path = std::vector<PathElement>;

enum class TransportSymbol { previous, play, pause, next, routes };
Path transportPath(TransportSymbol symbol);  // to be filled; of the routes, their triangle

// The routes' glyph: a triangle, to be filled, below waves, to be drawn as lines.
Path routingTriangle();
Path routingWaves();

// What stands for a track's artwork.
Path notePath();

// A new CAShapeLayer as large as the glyph on top of the view's layer; nil without the class. The
// path is filled, or drawn as a line of that width.
objc::Strong<objc::Object> addShape(objc::Object view, Path path, double lineWidth = 0);
// The colour of what is drawn.
void tint(objc::Object shape, objc::Object color);

}  // namespace sim
