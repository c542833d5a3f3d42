#include "tests/uikit/UIKitTest.h"

namespace sim {
namespace {

class Geometry : public UIKitTest {};

CGRect boundsOf(Object view) {
  return send<CGRect, "bounds">(view);
}
CGPoint centerOf(Object view) {
  return send<CGPoint, "center">(view);
}
void setTransform(Object view, CGAffineTransform transform) {
  send<void, "setTransform:">(view, transform);
}

constexpr CGAffineTransform quarterTurn = {0, 1, -1, 0, 0, 0};

TEST_F(Geometry, FrameBoundsAndCenterBelongTogether) {
  const auto view = make("UIView", rect(10, 20, 30, 40));
  EXPECT_EQ(boundsOf(view), rect(0, 0, 30, 40));
  EXPECT_EQ(centerOf(view), (CGPoint{25, 40}));
  send<void, "setCenter:">(view.get(), CGPoint{100, 100});
  EXPECT_EQ(frameOf(view), rect(85, 80, 30, 40));
  send<void, "setBounds:">(view.get(), rect(0, 5, 10, 10));
  EXPECT_EQ(frameOf(view), rect(95, 95, 10, 10));
}

TEST_F(Geometry, TheFrameIsTheBoxAroundTheTransformedBounds) {
  const auto view = make("UIView", rect(0, 0, 100, 50));
  setTransform(view, {0.5, 0, 0, 0.5, 0, 0});
  EXPECT_EQ(frameOf(view), rect(25, 12.5, 50, 25));
  setTransform(view, quarterTurn);
  EXPECT_EQ(frameOf(view), rect(25, -25, 50, 100));
  EXPECT_EQ(boundsOf(view), rect(0, 0, 100, 50));
  setTransform(view, {1, 0, 0, 1, 0, -18});
  EXPECT_EQ(frameOf(view), rect(0, -18, 100, 50));
}

TEST_F(Geometry, SettingTheFrameKeepsTheTransform) {
  const auto view = make("UIView", rect(0, 0, 100, 50));
  setTransform(view, quarterTurn);
  send<void, "setFrame:">(view.get(), rect(10, 10, 20, 60));
  EXPECT_EQ(boundsOf(view).size, (CGSize{60, 20}));
  EXPECT_EQ(frameOf(view), rect(10, 10, 20, 60));
  setTransform(view, {});
  EXPECT_EQ(frameOf(view), rect(-10, 30, 60, 20));
}

TEST_F(Geometry, TheLayerKnowsTheSame) {
  const auto view = make("UIView", rect(10, 20, 30, 40));
  const Object layer = send<Object, "layer">(view.get());
  EXPECT_EQ((send<CGPoint, "position">(layer)), (CGPoint{25, 40}));
  send<void, "setAnchorPoint:">(layer, CGPoint{0, 0});
  EXPECT_EQ(frameOf(view), rect(25, 40, 30, 40));
}

TEST_F(Geometry, PointsConvertBetweenViews) {
  const auto root = make("UIView", rect(0, 0, 200, 200));
  const auto left = make("UIView", rect(10, 10, 50, 50));
  const auto right = make("UIView", rect(110, 20, 50, 50));
  add(root, left);
  add(root, right);
  EXPECT_EQ((send<CGPoint, "convertPoint:toView:">(left.get(), CGPoint{1, 2}, right.get())),
            (CGPoint{-99, -8}));
  EXPECT_EQ((send<CGPoint, "convertPoint:fromView:">(left.get(), CGPoint{1, 2}, right.get())),
            (CGPoint{101, 12}));
  setTransform(right, {2, 0, 0, 2, 0, 0});
  EXPECT_EQ((send<CGRect, "convertRect:toView:">(right.get(), rect(0, 0, 50, 50), nullptr)),
            rect(85, -5, 100, 100));
}

TEST_F(Geometry, SubviewsFollowByTheirMasks) {
  const auto parent = make("UIView", rect(0, 0, 100, 100));
  const auto resizing = make("UIView", rect(10, 10, 80, 80));
  const auto atBottomRight = make("UIView", rect(70, 80, 20, 10));
  const auto fixed = make("UIView", rect(1, 2, 3, 4));
  send<void, "setAutoresizingMask:">(resizing.get(), 2UL | 16UL);
  send<void, "setAutoresizingMask:">(atBottomRight.get(), 1UL | 8UL);
  for (const auto& each : {resizing, atBottomRight, fixed}) add(parent, each);
  send<void, "setFrame:">(parent.get(), rect(50, 50, 200, 150));
  EXPECT_EQ(frameOf(resizing), rect(10, 10, 180, 130));
  EXPECT_EQ(frameOf(atBottomRight), rect(170, 130, 20, 10));
  EXPECT_EQ(frameOf(fixed), rect(1, 2, 3, 4));
}

TEST_F(Geometry, FlexiblePartsGrowInProportion) {
  const auto parent = make("UIView", rect(0, 0, 100, 100));
  const auto view = make("UIView", rect(20, 0, 60, 10));
  send<void, "setAutoresizingMask:">(view.get(), 1UL | 2UL);  // the left margin and the width
  add(parent, view);
  send<void, "setBounds:">(parent.get(), rect(0, 0, 180, 100));
  EXPECT_EQ(frameOf(view), rect(40, 0, 120, 10));
}

}  // namespace
}  // namespace sim
