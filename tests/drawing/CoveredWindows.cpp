// A page is told of no window that nobody can see.
#include <gtest/gtest.h>

#include "simulator/drawing/Covered.h"

namespace sim {
namespace {

using scene::Node;

Node windowWith(double opacity) {
  const CGRect all = {{}, {390, 844}};
  Node view;
  view.attributes.bounds = all;
  view.attributes.background = scene::Color{0, 0, 0, opacity};
  Node window;
  window.attributes.bounds = all;
  window.children.push_back(view);
  return window;
}

std::size_t seen(std::initializer_list<Node> windows) {
  Node screen;
  screen.attributes.bounds = {{}, {390, 844}};
  screen.children = windows;
  dropCoveredWindows(screen);
  return screen.children.size();
}

TEST(CoveredWindows, AreNotThere) {
  EXPECT_EQ(seen({windowWith(1), windowWith(1), windowWith(0.5)}), 2U);
}

TEST(CoveredWindows, AreSeenThroughAnother) {
  EXPECT_EQ(seen({windowWith(1), windowWith(0.5)}), 2U);
  Node fading = windowWith(1);
  fading.attributes.opacity = 0.9;
  EXPECT_EQ(seen({windowWith(1), fading}), 2U);
  Node moved = windowWith(1);
  moved.attributes.toParent.ty = 10;
  EXPECT_EQ(seen({windowWith(1), moved}), 2U);
}

}  // namespace
}  // namespace sim
