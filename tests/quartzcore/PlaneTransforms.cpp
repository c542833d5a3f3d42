// Transforms taken apart and put together again.
#include <gtest/gtest.h>

#include <cmath>

#include "simulator/quartzcore/PlaneTransform.h"

namespace sim {
namespace {

void expectSameAgain(const CGAffineTransform& transform) {
  const CGAffineTransform made = PlaneTransform(transform).whole();
  EXPECT_NEAR(made.a, transform.a, 1e-12);
  EXPECT_NEAR(made.b, transform.b, 1e-12);
  EXPECT_NEAR(made.c, transform.c, 1e-12);
  EXPECT_NEAR(made.d, transform.d, 1e-12);
  EXPECT_EQ(made.tx, transform.tx);
  EXPECT_EQ(made.ty, transform.ty);
}

TEST(PlaneTransform, LosesNothing) {
  const double numbers[] = {-2, -0.5, 0, 1, 3};
  for (const double a : numbers)
    for (const double b : numbers)
      for (const double c : numbers)
        for (const double d : numbers) expectSameAgain({a, b, c, d, 5, -7});
}

TEST(PlaneTransform, KnowsScaleShearTurnAndMove) {
  const double angle = 0.5, cosine = std::cos(angle), sine = std::sin(angle);
  const PlaneTransform scaledAndTurned({2 * cosine, 2 * sine, -3 * sine, 3 * cosine, 4, 5});
  EXPECT_NEAR(scaledAndTurned.scale.x, 2, 1e-12);
  EXPECT_NEAR(scaledAndTurned.scale.y, 3, 1e-12);
  EXPECT_NEAR(scaledAndTurned.turn, angle, 1e-12);
  EXPECT_NEAR(scaledAndTurned.shear, 0, 1e-12);
  EXPECT_EQ(scaledAndTurned.move, (CGPoint{4, 5}));
  const PlaneTransform sheared({1, 0, 0.25, 1, 0, 0});
  EXPECT_EQ(sheared.shear, 0.25);
  EXPECT_EQ(sheared.turn, 0);
}

TEST(PlaneTransform, OfAMirrorImageIsNotTurned) {
  const PlaneTransform leftToRight({-1, 0, 0, 1, 0, 0});
  EXPECT_EQ(leftToRight.scale, (CGPoint{-1, 1}));
  EXPECT_EQ(leftToRight.turn, 0);
  const PlaneTransform upsideDown({1, 0, 0, -1, 0, 0});
  EXPECT_EQ(upsideDown.scale, (CGPoint{1, -1}));
  EXPECT_EQ(upsideDown.turn, 0);
}

}  // namespace
}  // namespace sim
