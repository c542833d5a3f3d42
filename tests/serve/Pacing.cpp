// How the phone's time follows a clock on the wall.
#include <gtest/gtest.h>

#include <limits>

#include "simulator/serve/Pace.h"

namespace sim {
namespace {

using namespace std::chrono_literals;

const Pace::Moment noon{100h};

TEST(Pacing, GoesOnFromWhereItSetsOut) {
  Pace pace;
  pace.rebase(nanoseconds(10), noon);
  EXPECT_EQ(pace.uptimeAt(noon), nanoseconds(10));
  EXPECT_EQ(pace.uptimeAt(noon + 2500ms), nanoseconds(12.5));
  EXPECT_EQ(pace.uptimeAt(noon - 1s), nanoseconds(10));
}

TEST(Pacing, KeepsItsPlaceWhenItsSpeedChanges) {
  Pace pace;
  pace.rebase(0, noon);
  pace.setSpeed(60, noon + 1s);
  EXPECT_EQ(pace.uptimeAt(noon + 1s), nanoseconds(1));
  EXPECT_EQ(pace.uptimeAt(noon + 2s), nanoseconds(61));
  pace.setSpeed(1e9, noon + 2s);
  EXPECT_EQ(pace.speed(), 3600);
  pace.setPaused(true, noon + 3s);
  EXPECT_EQ(pace.uptimeAt(noon + 1h), nanoseconds(3661));
  pace.setPaused(false, noon + 1h);
  EXPECT_EQ(pace.uptimeAt(noon + 1h + 1s), nanoseconds(7261));
}

TEST(Pacing, TellsWholeMilliseconds) {
  Pace pace;
  pace.rebase(nanoseconds(1), noon);
  EXPECT_EQ(pace.uptimeAt(noon + 1999us), nanoseconds(1.001));
  // But never goes back to one.
  pace.rebase(nanoseconds(2) + 7, noon);
  EXPECT_EQ(pace.uptimeAt(noon + 999us), nanoseconds(2) + 7);
}

TEST(Pacing, KnowsWhenSomethingIsReached) {
  for (const double speed : {1.0, 7.0, 60.0, 3600.0}) {
    Pace pace;
    pace.setSpeed(speed, noon);
    pace.rebase(nanoseconds(1.5), noon);
    for (const Nanoseconds due : {nanoseconds(1), nanoseconds(1.5), nanoseconds(61) + 1,
                                  nanoseconds(61.001), nanoseconds(86'400)}) {
      const auto moment = pace.momentOf(due);
      ASSERT_TRUE(moment);
      EXPECT_GE(pace.uptimeAt(*moment), due) << due << " at " << speed;
      const bool isToCome = due > nanoseconds(1.5);
      EXPECT_EQ(pace.uptimeAt(*moment - 1ms) < due, isToCome) << due << " at " << speed;
    }
  }
}

TEST(Pacing, ReachesNothingWhilePaused) {
  Pace pace;
  pace.setPaused(true, noon);
  EXPECT_FALSE(pace.momentOf(nanoseconds(1)));
}

TEST(Pacing, WaitsForNothingForever) {
  Pace pace;
  pace.rebase(0, noon);
  EXPECT_TRUE(pace.momentOf(std::numeric_limits<Nanoseconds>::max()));
}

}  // namespace
}  // namespace sim
