#include "simulator/coversheet/LockScreen.h"

#include "objc/Hook.h"
#include "simulator/runtime/LiveObjects.h"
#include "tests/hosts/TestHost.h"

namespace sim {
namespace {

class LockScreenTest : public TestHost {
 protected:
  static LockScreen& screen() { return LockScreen::current(); }
  static unsigned long controllers() {
    return sim::runtime::liveInstanceCount(objc_getClass("CSTimerViewController"));
  }
};

long drawings = 0;

void countDrawing(objc::Original<void(objc::Object, objc::Object, objc::Object)> original,
                  objc::Object view, objc::Object date, objc::Object timeZone) {
  ++drawings;
  original(view, date, timeZone);
}

TEST_F(LockScreenTest, IsMadeWhenThePhoneIsFirstLockedButForItsCountdown) {
  boot();
  launchSpringBoard();
  EXPECT_EQ(controllers(), 1U);
  EXPECT_FALSE(screen().dateText());
  screen().lock();
  screen().unlock();
  screen().lock();
  EXPECT_EQ(controllers(), 1U);
  EXPECT_EQ(screen().dateText(), "Friday, January 1");
  EXPECT_FALSE(screen().countdown());
}

TEST_F(LockScreenTest, KnowsWhetherThePhoneIsLocked) {
  boot();
  const auto isLocked = [] {
    return objc::send<bool, "isUILocked">(sharedInstance("SBLockScreenManager"));
  };
  EXPECT_FALSE(isLocked());
  screen().lock();
  EXPECT_TRUE(isLocked());
  screen().unlock();
  EXPECT_FALSE(isLocked());
}

TEST_F(LockScreenTest, DrawsTheDateWhenItIsLocked) {
  boot();
  screen().lock();
  phone.clock.setWall(phone.clock.wall() + 86400);
  EXPECT_EQ(screen().dateText(), "Friday, January 1");
  screen().lock();
  EXPECT_EQ(screen().dateText(), "Saturday, January 2");
}

TEST_F(LockScreenTest, DrawsTheDateAtEveryMidnight) {
  boot();
  screen().lock();
  screen().unlock();
  advance(7200 - 0.001);
  EXPECT_EQ(screen().dateText(), "Friday, January 1");
  advance(0.001);
  EXPECT_EQ(screen().dateText(), "Saturday, January 2");
  advance(86400);
  EXPECT_EQ(screen().dateText(), "Sunday, January 3");
  EXPECT_EQ(timeOf("lock screen date \"Sunday, January 3\""), 7200 + 86400);
}

TEST_F(LockScreenTest, DrawsTheDateOnceAtMidnightHoweverOftenItWasLocked) {
  boot();
  objc::hook<"SBFLockScreenDateSubtitleDateView", "_setDate:inTimeZone:", countDrawing>();
  screen().lock();
  screen().lock();
  drawings = 0;
  advance(7200);
  EXPECT_EQ(drawings, 1);
}

TEST_F(LockScreenTest, MidnightIsMidnightByAnyWallClock) {
  boot();
  for (const double fraction : {0.1, 0.3, 0.7, 0.123456789}) {
    phone.clock.setWall(820533600 + fraction);
    screen().lock();
    EXPECT_EQ(screen().dateText(), "Friday, January 1");
    advance(7200);
    EXPECT_EQ(screen().dateText(), "Saturday, January 2") << fraction;
  }
}

TEST_F(LockScreenTest, WaitsForMidnightAgainWhenTheWallClockIsSetBack) {
  boot();
  screen().lock();
  phone.clock.setWall(phone.clock.wall() - 3600);
  advance(7200);
  EXPECT_EQ(screen().dateText(), "Friday, January 1");
  advance(3600);
  EXPECT_EQ(screen().dateText(), "Saturday, January 2");
}

TEST_F(LockScreenTest, LivesWithoutItsClasses) {
  phone.setup.missingClasses = {"CSTimerViewController", "SBFLockScreenDateSubtitleDateView"};
  boot();
  screen().lock();
  advance(100'000);
  EXPECT_FALSE(screen().dateText());
  EXPECT_FALSE(screen().countdown());
}

TEST_F(LockScreenTest, LivesWithoutALabel) {
  phone.setup.missingClasses = {"SBUILegibilityLabel"};
  boot();
  screen().lock();
  EXPECT_FALSE(screen().dateText());
}

}  // namespace
}  // namespace sim
