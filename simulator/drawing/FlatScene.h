// A scene as a list of nodes by name, which says cheaply what has changed.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "simulator/drawing/Scene.h"

namespace sim {

struct FlatNode {
  scene::Attributes attributes;
  std::vector<std::string> children;  // names, back to front
  std::string before;                 // see scene::Node; empty: none
  double beforeOpacity = 0;
  std::string mask;  // empty: none
  bool operator==(const FlatNode&) const = default;
};

// The root is "0", every other node has its number as its name. A picture of before is made of
// nodes of its own, named "12b".
using FlatScene = std::map<std::string, FlatNode>;
inline constexpr const char* rootNodeName = "0";

FlatScene flattened(const scene::Node& root);

struct SceneChanges {
  std::vector<const FlatScene::value_type*> changed;  // new ones or different ones, in `now`
  std::vector<std::string> gone;
  bool any() const { return !changed.empty() || !gone.empty(); }
};
// Points into `now`.
SceneChanges changesBetween(const FlatScene& before, const FlatScene& now);

}  // namespace sim
