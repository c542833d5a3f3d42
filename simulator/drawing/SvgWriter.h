// Scenes as SVG documents: the same scene gives the same text on every run and machine. One
// element a line, so that documents can be compared line by line.
#pragma once

#include <functional>
#include <string>

#include "simulator/drawing/Scene.h"

namespace sim {

// What an image's href becomes, from the phone's path of its file.
using ImageReference = std::function<std::string(const std::string& file)>;

// The file itself, as a data URI. Throws std::runtime_error when the phone has no such file.
std::string embeddedImage(const std::string& file);
// The phone's path: documents stay small and independent of how images are compressed.
std::string namedImage(const std::string& file);

// As large as the node's bounds, in points.
std::string svgDocument(const scene::Node& node, const ImageReference& image);

}  // namespace sim
