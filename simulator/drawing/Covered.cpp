#include "simulator/drawing/Covered.h"

#include <algorithm>

namespace sim {
namespace {

using scene::Node;

bool isWhole(const Node& node, CGSize screen) {
  const auto& its = node.attributes;
  return its.opacity >= 1 && its.cornerRadius == 0 && !node.mask && !node.before &&
         its.toParent == CGAffineTransform{} && its.bounds == CGRect{{}, screen};
}

// The window, or the view that fills it.
bool covers(const Node& window, CGSize screen) {
  if (!isWhole(window, screen)) return false;
  const auto isOpaque = [&screen](const Node& node) {
    return isWhole(node, screen) && node.attributes.background &&
           (*node.attributes.background)[3] >= 1;
  };
  return isOpaque(window) || (!window.children.empty() && isOpaque(window.children.front()));
}

}  // namespace

void dropCoveredWindows(Node& screen) {
  const CGSize size = screen.attributes.bounds.size;
  const auto last = std::find_if(screen.children.rbegin(), screen.children.rend(),
                                 [&size](const Node& window) { return covers(window, size); });
  if (last != screen.children.rend())
    screen.children.erase(screen.children.begin(), std::prev(last.base()));
}

}  // namespace sim
