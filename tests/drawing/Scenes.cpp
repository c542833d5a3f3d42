// What of the windows, views and layers is seen, and where.
#include "tests/drawing/DrawingTest.h"

namespace sim {
namespace {

using Scenes = DrawingTest;

std::vector<double> alphas(const scene::Node& node) {
  std::vector<double> found;
  for (const auto& child : node.children) found.push_back(child.attributes.opacity);
  return found;
}

void setAlpha(Object view, double alpha) {
  send<void, "setAlpha:">(view, alpha);
}

TEST_F(Scenes, WindowsLieByLevelThenAsTheyWereShown) {
  const auto high = make("UIWindow"), low = make("UIWindow"), late = make("UIWindow"),
             hidden = make("UIWindow");
  send<void, "setWindowLevel:">(high.get(), 10.0);
  setAlpha(high, 0.1), setAlpha(low, 0.2), setAlpha(late, 0.3), setAlpha(hidden, 0.4);
  for (const auto& window : {high, low, late}) send<void, "setHidden:">(window.get(), false);
  const auto screen = screenScene();
  EXPECT_EQ(alphas(screen), (std::vector{0.2, 0.3, 0.1}));
  EXPECT_EQ(screen.attributes.bounds, rect(0, 0, 390, 844));
}

TEST_F(Scenes, ViewsAndLayersLieInTheirOrder) {
  const auto parent = make("UIView"), first = make("UIView"), second = make("UIView");
  add(parent, first), add(parent, second);
  const Object layer = send<Object, "layer">(cls("CALayer"));
  send<void, "setOpacity:">(layer, 0.25f);
  send<void, "insertSublayer:atIndex:">(send<Object, "layer">(parent.get()), layer, 1u);
  setAlpha(first, 0.5), setAlpha(second, 0.75);
  EXPECT_EQ(alphas(drawn(parent)), (std::vector{0.5, 0.25, 0.75}));
}

TEST_F(Scenes, WhatIsHiddenOrTransparentIsNotThere) {
  const auto parent = make("UIView"), hidden = make("UIView"), clear = make("UIView");
  add(parent, hidden), add(parent, clear);
  EXPECT_EQ(drawn(parent).children.size(), 2u);
  send<void, "setHidden:">(hidden.get(), true);
  setAlpha(clear, 0);
  EXPECT_TRUE(drawn(parent).children.empty());
}

TEST_F(Scenes, NodesKeepTheirNamesWhereverTheyGo) {
  const auto one = make("UIView"), other = make("UIView"), child = make("UIView");
  add(one, child);
  const auto before = drawn(one).children.at(0).id;
  add(other, child);
  EXPECT_EQ(drawn(other).children.at(0).id, before);
  EXPECT_NE(drawn(one).id, drawn(other).id);
}

TEST_F(Scenes, FramesBecomeTransformsIntoTheParent) {
  const auto view = make("UIView", rect(10, 20, 100, 50));
  EXPECT_EQ(drawn(view).attributes.toParent, (CGAffineTransform{1, 0, 0, 1, 10, 20}));
  send<void, "setBounds:">(view.get(), rect(0, 300, 100, 50));  // scrolled
  EXPECT_EQ(drawn(view).attributes.toParent, (CGAffineTransform{1, 0, 0, 1, 10, -280}));
  EXPECT_EQ(drawn(view).attributes.bounds, rect(0, 300, 100, 50));
}

TEST_F(Scenes, TransformsTurnAboutTheMiddle) {
  const auto view = make("UIView", rect(0, 0, 100, 50));
  send<void, "setTransform:">(view.get(), CGAffineTransform{2, 0, 0, 2, 0, 0});
  EXPECT_EQ(drawn(view).attributes.toParent, (CGAffineTransform{2, 0, 0, 2, -50, -25}));
}

TEST_F(Scenes, LooksComeAlong) {
  const auto view = make("UIView", rect(0, 0, 100, 50));
  EXPECT_FALSE(drawn(view).attributes.background);
  EXPECT_FALSE(drawn(view).attributes.clips);
  send<void, "setBackgroundColor:">(view.get(), color(1, 0.5, 0, 0.5));
  send<void, "setClipsToBounds:">(view.get(), true);
  const Object layer = send<Object, "layer">(view.get());
  send<void, "setCornerRadius:">(layer, 8.0);
  send<void, "setBorderWidth:">(layer, 2.0);
  send<void, "setBorderColor:">(layer, send<Object, "CGColor">(color(0, 0, 1)));
  const auto attributes = drawn(view).attributes;
  EXPECT_EQ(attributes.background, (scene::Color{1, 0.5, 0, 0.5}));
  EXPECT_TRUE(attributes.clips);
  EXPECT_EQ(attributes.cornerRadius, 8);
  EXPECT_EQ(attributes.border, (scene::Border{2, {0, 0, 1, 1}}));
}

TEST_F(Scenes, FlippedLayersStandOnTheirHeads) {
  const Object parent = send<Object, "layer">(cls("CALayer"));
  const Object child = send<Object, "layer">(cls("CALayer"));
  send<void, "setFrame:">(parent, rect(0, 0, 100, 100));
  send<void, "setFrame:">(child, rect(0, 0, 10, 10));
  send<void, "setGeometryFlipped:">(parent, true);
  send<void, "addSublayer:">(parent, child);
  const auto node = sceneOf(CALayer::of(parent), 0);
  EXPECT_EQ(node.children.at(0).attributes.toParent.apply(rect(0, 0, 10, 10)), rect(0, 90, 10, 10));
}

TEST_F(Scenes, EqualOnlyWhenNothingChanged) {
  const auto view = make("UIView"), child = make("UIView");
  add(view, child);
  const auto before = drawn(view);
  EXPECT_EQ(drawn(view), before);
  setAlpha(child, 0.5);
  EXPECT_FALSE(drawn(view) == before);
}

}  // namespace
}  // namespace sim
