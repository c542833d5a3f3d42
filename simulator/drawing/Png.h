// SVG documents as pictures of pixels.
#pragma once

#include <filesystem>
#include <string>

namespace sim {

// Replaces the file. Drawn by the program rsvg-convert; throws std::runtime_error when there is no
// such program or it fails. `scale` is pixels per point.
void writePng(const std::string& svg, const std::filesystem::path& file, double scale);

}  // namespace sim
