// Scenes for pages, which draw them by the same rules as SvgWriter; docs/scene.md describes them.
#pragma once

#include <nlohmann/json.hpp>

#include "simulator/drawing/FlatScene.h"

namespace sim {

nlohmann::json nodeJson(const FlatNode& node);
// {"root": "0", "nodes": {NAME: NODE…}, "gone": []}
nlohmann::json wholeSceneJson(const FlatScene& scene);
// {"nodes": {NAME: NODE…}, "gone": [NAME…]}
nlohmann::json changesJson(const SceneChanges& changes);

}  // namespace sim
