// Key paths into the structures of a layer, as animations and states name them: "position.x",
// "bounds.size.width", "transform.scale", "transform.rotation.z" and their like. All are numbers.
#pragma once

#include <optional>
#include <string_view>

#include "objc/Object.h"

namespace sim {

bool isLayerKeyPath(std::string_view path);

// Nothing, and false, for other paths.
std::optional<double> layerMember(objc::Object layer, std::string_view path);
bool setLayerMember(objc::Object layer, std::string_view path, double value);

}  // namespace sim
