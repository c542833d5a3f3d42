// Paths of the host's own drawings, written as text.
#pragma once

#include <string_view>
#include <vector>

#include "simulator/coregraphics/CGPath.h"

namespace sim {

// "M x y" begins a subpath, "L x y" draws a line, "C x1 y1 x2 y2 x y" a curve, "Z" closes;
// "O x y r" is a whole circle, "R x y width height r" a rectangle with round corners. Throws
// std::logic_error for anything else: such texts are part of the program.
std::vector<PathElement> pathFromText(std::string_view text);

}  // namespace sim
