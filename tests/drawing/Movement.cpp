// What is seen while animations run.
#include "tests/drawing/DrawingTest.h"

namespace sim {
namespace {

class Movement : public MovementTest {
 protected:
  double alpha() const { return drawn(view).attributes.opacity; }
  double x() const { return drawn(view).attributes.toParent.tx; }
  void setAlpha(double alpha) const { send<void, "setAlpha:">(view.get(), alpha); }
  void setX(double x) const { send<void, "setFrame:">(view.get(), rect(x, 0, 100, 100)); }
};

TEST_F(Movement, HalfWayIsInTheMiddle) {
  animate(
      0.4, [this] { setAlpha(0), setX(100); }, linear);
  EXPECT_EQ((send<double, "alpha">(view.get())), 0);
  EXPECT_DOUBLE_EQ(alpha(), 1);
  advance(0.1);
  EXPECT_DOUBLE_EQ(alpha(), 0.75);
  EXPECT_DOUBLE_EQ(x(), 25);
  advance(0.3);
  EXPECT_DOUBLE_EQ(alpha(), 0);
  EXPECT_DOUBLE_EQ(x(), 100);
}

TEST_F(Movement, UsuallyStartsAndEndsGently) {
  animate(0.4, [this] { setX(100); });
  advance(0.1);
  EXPECT_LT(x(), 20);
  advance(0.1);
  EXPECT_NEAR(x(), 50, 0.001);
  advance(0.1);
  EXPECT_GT(x(), 80);
}

TEST_F(Movement, WaitsForItsDelay) {
  animate(
      0.4, [this] { setX(100); }, linear, 1);
  advance(1);
  EXPECT_DOUBLE_EQ(x(), 0);
  advance(0.2);
  EXPECT_DOUBLE_EQ(x(), 50);
}

TEST_F(Movement, SizesGrowAndColoursTurn) {
  animate(
      0.4,
      [this] {
        send<void, "setBounds:">(view.get(), rect(0, 0, 200, 100));
        send<void, "setBackgroundColor:">(view.get(), color(0.5, 1, 0));
        send<void, "setCornerRadius:">(send<Object, "layer">(view.get()), 10.0);
        send<void, "setTransform:">(view.get(), CGAffineTransform{3, 0, 0, 3, 0, 0});
      },
      linear);
  advance(0.2);
  const auto seen = drawn(view).attributes;
  EXPECT_EQ(seen.bounds, rect(0, 0, 150, 100));
  EXPECT_EQ(seen.background, (scene::Color{0.25, 0.5, 0, 0.5}));
  EXPECT_EQ(seen.cornerRadius, 5);
  EXPECT_EQ(seen.toParent.a, 2);
}

TEST_F(Movement, ChangesThatOverlapAddUpWithoutAJump) {
  animate(
      0.4, [this] { setX(100); }, linear);
  advance(0.2);
  animate(
      0.4, [this] { setX(0); }, linear);
  EXPECT_DOUBLE_EQ(x(), 50);
  advance(0.2);  // the first has ended, the second is half way
  EXPECT_DOUBLE_EQ(x(), 50);
  advance(0.2);
  EXPECT_DOUBLE_EQ(x(), 0);
}

TEST_F(Movement, MayBeginWhereItIsSeen) {
  constexpr unsigned long beginFromCurrentState = 1 << 2;
  animate(
      0.4, [this] { setX(100); }, linear);
  advance(0.1);
  animate(
      0.4, [this] { setX(0); }, linear | beginFromCurrentState);
  EXPECT_DOUBLE_EQ(x(), 25);
  advance(0.2);
  EXPECT_DOUBLE_EQ(x(), 12.5);
  EXPECT_DOUBLE_EQ(alpha(), 1);
}

TEST_F(Movement, WithoutAnAnimationIsSeenAtOnce) {
  setX(10);
  EXPECT_DOUBLE_EQ(x(), 10);
  animate(0, [this] { setX(20); });
  EXPECT_DOUBLE_EQ(x(), 20);
  animate(0.4, [this] {
    const auto inside = objc::block<void()>([this] { setX(30); });
    send<void, "performWithoutAnimation:">(cls("UIView"), inside.get());
  });
  EXPECT_DOUBLE_EQ(x(), 30);
  send<void, "setAnimationsEnabled:">(cls("UIView"), false);
  animate(0.4, [this] { setX(40); });
  send<void, "setAnimationsEnabled:">(cls("UIView"), true);
  EXPECT_DOUBLE_EQ(x(), 40);
}

TEST_F(Movement, InnerAnimationsTakeTheOutersTime) {
  constexpr unsigned long overrideInheritedDuration = 1 << 5;
  animate(
      0.4,
      [this] {
        animate(
            4, [this] { setX(100); }, 0);
      },
      linear);
  advance(0.2);
  EXPECT_DOUBLE_EQ(x(), 50);
  animate(
      0.4,
      [this] {
        animate(
            4, [this] { setAlpha(0); }, overrideInheritedDuration);
      },
      linear);
  advance(2);
  EXPECT_DOUBLE_EQ(alpha(), 0.5);
}

TEST_F(Movement, GoesToAndFro) {
  constexpr unsigned long repeat = 1 << 3, autoreverse = 1 << 4;
  animate(
      1, [this] { setAlpha(0); }, linear | repeat | autoreverse);
  for (const double expected : {0.75, 0.5, 0.25, 0.0, 0.25, 0.5, 0.75, 1.0, 0.75}) {
    advance(0.25);
    EXPECT_NEAR(alpha(), expected, 1e-9);
  }
  send<void, "removeAllAnimations">(send<Object, "layer">(view.get()));
  EXPECT_EQ(alpha(), 0);
}

TEST_F(Movement, SpringsSwingOverTheEnd) {
  const auto block = objc::block<void()>([this] { setX(100); });
  send<void,
       "animateWithDuration:delay:usingSpringWithDamping:initialSpringVelocity:options:"
       "animations:completion:">(cls("UIView"), 1.0, 0.0, 0.3, 0.0, 0UL, block.get(),
                                 objc::Block<void(bool)>(nullptr));
  double furthest = 0;
  for (int i = 0; i < 100; ++i) {
    advance(0.01);
    furthest = std::max(furthest, x());
  }
  EXPECT_GT(furthest, 120);
  EXPECT_DOUBLE_EQ(x(), 100);
}

TEST_F(Movement, ThePresentationLayerStandsWhereItIsSeen) {
  const Object layer = send<Object, "layer">(view.get());
  animate(
      0.4, [this] { setX(100), setAlpha(0); }, linear);
  advance(0.1);
  const Object seen = send<Object, "presentationLayer">(layer);
  EXPECT_EQ((send<CGRect, "frame">(seen)), rect(25, 0, 100, 100));
  EXPECT_FLOAT_EQ((send<float, "opacity">(seen)), 0.75f);
  EXPECT_EQ((send<CGRect, "frame">(layer)), rect(100, 0, 100, 100));
}

TEST_F(Movement, TransitionsDissolveOnePictureIntoTheOther) {
  constexpr unsigned long crossDissolve = 5 << 20;
  const auto label = make("UILabel", rect(0, 0, 100, 20));
  add(view, label);
  send<void, "setText:">(label.get(), string("before"));
  const auto change =
      objc::block<void()>([&label] { send<void, "setText:">(label.get(), string("after")); });
  send<void, "transitionWithView:duration:options:animations:completion:">(
      cls("UIView"), view.get(), 0.4, crossDissolve | linear, change.get(),
      objc::Block<void(bool)>(nullptr));
  advance(0.1);
  const auto seen = drawn(view);
  const auto textOf = [](const scene::Node& node) {
    return std::get<scene::Text>(node.children.at(0).attributes.content).lines.at(0).text;
  };
  EXPECT_EQ(textOf(seen), "after");
  ASSERT_TRUE(seen.before);
  EXPECT_EQ(textOf(*seen.before), "before");
  EXPECT_DOUBLE_EQ(seen.beforeOpacity, 0.75);
  advance(0.3);
  EXPECT_FALSE(drawn(view).before);
}

TEST_F(Movement, ATransitionBeginsWithoutTheSecondView) {
  constexpr unsigned long crossDissolve = 5 << 20;
  const auto first = make("UIView", rect(0, 0, 10, 10));
  const auto second = make("UIView", rect(0, 0, 20, 20));
  add(view, first);
  add(view, second);
  send<void, "setHidden:">(second.get(), true);
  send<void, "setHidden:">(second.get(), false);
  send<void, "transitionFromView:toView:duration:options:completion:">(
      cls("UIView"), first.get(), second.get(), 0.4, crossDissolve,
      objc::Block<void(bool)>(nullptr));
  const auto seen = drawn(view);
  const auto widths = [](const scene::Node& node) {
    std::vector<double> all;
    for (const scene::Node& child : node.children)
      all.push_back(child.attributes.bounds.size.width);
    return all;
  };
  EXPECT_EQ(widths(seen), std::vector<double>{20});
  ASSERT_TRUE(seen.before);
  EXPECT_EQ(widths(*seen.before), std::vector<double>{10});
}

}  // namespace
}  // namespace sim
