#include "simulator/drawing/FlatScene.h"

namespace sim {
namespace {

class Flattening {
 public:
  // How the node is named.
  std::string add(const scene::Node& node, const std::string& mark) {
    std::string name = std::to_string(node.id) + mark;
    FlatNode flat;
    flat.attributes = node.attributes;
    flat.children.reserve(node.children.size());
    for (const auto& child : node.children) flat.children.push_back(add(child, mark));
    if (node.before) {
      flat.before = add(*node.before, mark + 'b');
      flat.beforeOpacity = node.beforeOpacity;
    }
    if (node.mask) flat.mask = add(*node.mask, mark);
    scene_.insert_or_assign(name, std::move(flat));
    return name;
  }
  FlatScene take() { return std::move(scene_); }

 private:
  FlatScene scene_;
};

}  // namespace

FlatScene flattened(const scene::Node& root) {
  Flattening flattening;
  flattening.add(root, "");
  return flattening.take();
}

SceneChanges changesBetween(const FlatScene& before, const FlatScene& now) {
  SceneChanges changes;
  for (const auto& entry : now) {
    const auto found = before.find(entry.first);
    if (found == before.end() || !(found->second == entry.second))
      changes.changed.push_back(&entry);
  }
  for (const auto& [name, node] : before)
    if (!now.contains(name)) changes.gone.push_back(name);
  return changes;
}

}  // namespace sim
