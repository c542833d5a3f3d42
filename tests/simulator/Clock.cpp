#include "simulator/machine/Clock.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace sim {
namespace {

TEST(Clock, StartsAtUptimeZeroInTheEveningOfTheFirstOfJanuary) {
  const Clock clock;
  EXPECT_EQ(clock.uptime(), 0);
  EXPECT_EQ(clock.wall(), 820533600.0);
}

TEST(Clock, NeverGoesBackwards) {
  Clock clock;
  clock.advanceTo(5);
  clock.advanceTo(3);
  EXPECT_EQ(clock.uptime(), 5);
}

TEST(Clock, WallClockFollowsUptimeAfterItWasSet) {
  Clock clock;
  clock.advanceTo(2 * nanosecondsPerSecond);
  clock.setWall(1000);
  clock.advanceTo(5 * nanosecondsPerSecond);
  EXPECT_EQ(clock.wall(), 1003);
}

TEST(Clock, IsRestoredExactly) {
  Clock clock;
  clock.advanceTo(123456789);
  clock.setWall(820533600.1);
  Clock restored;
  restored.restore(clock.uptime(), clock.wallAtZero());
  EXPECT_EQ(restored.wall(), clock.wall());
  EXPECT_EQ(restored.uptime(), clock.uptime());
}

TEST(Nanoseconds, RoundToTheNearest) {
  EXPECT_EQ(nanoseconds(0.0000000014), 1);
  EXPECT_EQ(nanoseconds(0.0000000016), 2);
  EXPECT_EQ(nanoseconds(-0.0000000016), -2);
  EXPECT_EQ(nanoseconds(61), 61 * nanosecondsPerSecond);
}

TEST(Deadline, SaturatesAtBothEndsOfTime) {
  constexpr auto most = std::numeric_limits<Nanoseconds>::max();
  EXPECT_EQ(deadline(5, 3), 8);
  EXPECT_EQ(deadline(most - 1, 5), most);
  EXPECT_EQ(deadline(5, most), most);
  EXPECT_EQ(deadline(5, -most), 0);
  EXPECT_EQ(deadline(-5, 8), 3);
  EXPECT_EQ(deadline(-5, -most), 0);
}

TEST(Nanoseconds, SaturateInsteadOfOverflowing) {
  constexpr auto most = std::numeric_limits<Nanoseconds>::max();
  EXPECT_EQ(nanoseconds(1e300), most);
  EXPECT_EQ(nanoseconds(std::numeric_limits<double>::infinity()), most);
  EXPECT_EQ(nanoseconds(-1e300), -most);
  EXPECT_EQ(nanoseconds(9223372036.854775807), most);
  EXPECT_EQ(nanoseconds(std::nan("")), 0);
}

}  // namespace
}  // namespace sim
