// SVG documents as pictures of pixels.
#pragma once

#include <string>

namespace sim {

// The bytes of the file. Drawn by the program rsvg-convert; throws std::runtime_error when there is
// no such program or it fails. `scale` is pixels per point.
std::string pngOf(const std::string& svg, double scale);

}  // namespace sim
