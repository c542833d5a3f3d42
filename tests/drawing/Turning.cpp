// What is seen of transforms while they change.
#include <numbers>

#include "tests/drawing/DrawingTest.h"

namespace sim {
namespace {

constexpr double pi = std::numbers::pi;

CGAffineTransform turnedBy(double angle) {
  return {std::cos(angle), std::sin(angle), -std::sin(angle), std::cos(angle), 0, 0};
}

class Turning : public MovementTest {
 protected:
  void turn(const CGAffineTransform& transform) const {
    send<void, "setTransform:">(view.get(), transform);
  }
  void turnOn(double angle) const {
    turn(send<CGAffineTransform, "transform">(view.get()).then(turnedBy(angle)));
  }
  void animateTo(const CGAffineTransform& transform, unsigned long options = 0) const {
    animate(
        0.4, [&] { turn(transform); }, linear | options);
  }
  CGAffineTransform seen() const {
    const Object layer = send<Object, "layer">(view.get());
    return send<CGAffineTransform, "affineTransform">(send<Object, "presentationLayer">(layer));
  }
  void expectSeen(const CGAffineTransform& wanted) const {
    const CGAffineTransform found = seen();
    for (const auto number :
         {&CGAffineTransform::a, &CGAffineTransform::b, &CGAffineTransform::c,
          &CGAffineTransform::d, &CGAffineTransform::tx, &CGAffineTransform::ty})
      EXPECT_NEAR(found.*number, wanted.*number, 1e-9);
  }
};

TEST_F(Turning, KeepsItsSizeWhileItTurns) {
  animateTo(turnedBy(pi / 2));
  advance(0.2);
  expectSeen(turnedBy(pi / 4));
  const auto drawnNow = drawn(view).attributes.toParent;
  EXPECT_NEAR(std::hypot(drawnNow.a, drawnNow.b), 1, 1e-9);
}

TEST_F(Turning, GoesTheShorterWayRound) {
  animateTo(turnedBy(1.5 * pi));
  advance(0.2);
  expectSeen(turnedBy(-pi / 4));
}

TEST_F(Turning, HalfATurnGoesClockwiseEveryTime) {
  for (int tap = 0; tap < 5; ++tap) {
    animate(
        0.4, [this] { turnOn(pi); }, linear);
    advance(0.1);
    expectSeen(turnedBy((tap + 0.25) * pi));
    advance(0.3);
    expectSeen(turnedBy((tap + 1) * pi));
  }
}

TEST_F(Turning, HalfATurnBackGoesClockwiseToo) {
  turn(turnedBy(pi));
  animateTo(CGAffineTransform());
  advance(0.1);
  expectSeen(turnedBy(1.25 * pi));
}

TEST_F(Turning, TurnsThatOverlapAddUpWithoutAJump) {
  const auto halfATurn = [this] { turnOn(pi); };
  animate(0.4, halfATurn, linear);
  advance(0.2);
  animate(0.4, halfATurn, linear);
  expectSeen(turnedBy(pi / 2));
  advance(0.1);
  expectSeen(turnedBy(pi));
  advance(0.1);
  expectSeen(turnedBy(1.5 * pi));
  advance(0.2);
  expectSeen(CGAffineTransform());
}

TEST_F(Turning, MayBeginWhereItIsSeen) {
  constexpr unsigned long beginFromCurrentState = 1 << 2;
  animateTo(turnedBy(pi / 2));
  advance(0.2);
  animateTo(CGAffineTransform(), beginFromCurrentState);
  expectSeen(turnedBy(pi / 4));
  advance(0.2);
  expectSeen(turnedBy(pi / 8));
}

TEST_F(Turning, ChangesOfOneAnimationAreOne) {
  animate(
      0.4,
      [this] {
        turn(turnedBy(pi / 4));
        turn({2, 0, 0, 4, 6, 8});
      },
      linear);
  advance(0.1);
  expectSeen({1.25, 0, 0, 1.75, 1.5, 2});
}

TEST_F(Turning, AMirrorImageIsSeenOnItsEdge) {
  animateTo({-1, 0, 0, 1, 0, 0});
  advance(0.2);
  expectSeen({0, 0, 0, 1, 0, 0});
  advance(0.1);
  expectSeen({-0.5, 0, 0, 1, 0, 0});
}

TEST_F(Turning, GrowsFromNothingButVanishesAtOnce) {
  turn({0, 0, 0, 0, 0, 0});
  animateTo(CGAffineTransform());
  advance(0.1);
  expectSeen({0.25, 0, 0, 0.25, 0, 0});
  advance(0.3);
  animateTo({0, 0, 0, 0, 0, 0});
  expectSeen({0, 0, 0, 0, 0, 0});
}

}  // namespace
}  // namespace sim
