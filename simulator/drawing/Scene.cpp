#include "simulator/drawing/Scene.h"

namespace sim::scene {
namespace {

bool areAlike(const std::shared_ptr<const Node>& a, const std::shared_ptr<const Node>& b) {
  return a == b || (a && b && *a == *b);
}

}  // namespace

bool Node::operator==(const Node& other) const {
  return id == other.id && attributes == other.attributes && beforeOpacity == other.beforeOpacity &&
         areAlike(mask, other.mask) && areAlike(before, other.before) && children == other.children;
}

}  // namespace sim::scene
