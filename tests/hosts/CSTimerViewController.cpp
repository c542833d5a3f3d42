#include "simulator/coversheet/ClockTimer.h"
#include "tests/hosts/TestHost.h"

namespace sim {
namespace {

class CSTimerViewControllerTest : public TestHost {
 protected:
  CSTimerViewControllerTest() { boot(); }

  // Enabled, and past what the Clock answers to its first question.
  objc::Strong<objc::Object> make() {
    auto made =
        objc::adopt(objc::send<objc::Object, "new">(objc_getClass("CSTimerViewController")));
    objc::send<void, "setEnabled:">(made.get(), true);
    phone.queue.runDue();
    return made;
  }
  void countDown(objc::Object controller, double duration) {
    objc::send<void, "setEndDate:">(controller, date(phone.clock.wall() + duration));
  }
  static bool counts(objc::Object controller) {
    return bool(objc::send<objc::Object, "_endDate">(controller));
  }
};

constexpr const char* ended = "lock screen countdown ends";

TEST_F(CSTimerViewControllerTest, GoesAwayAtTheEnd) {
  const auto controller = make();
  countDown(controller.get(), 60);
  EXPECT_EQ(journal().front(), "-[CSTimerViewController setEndDate:2027-01-01 22:01:00 +0000]");
  advance(59.9);
  EXPECT_TRUE(counts(controller.get()));
  advance(0.1);
  EXPECT_FALSE(counts(controller.get()));
  EXPECT_EQ(timeOf(ended), 60);
}

TEST_F(CSTimerViewControllerTest, AnotherDateTakesThePlaceOfTheFirst) {
  const auto controller = make();
  countDown(controller.get(), 60);
  countDown(controller.get(), 90);
  advance(1000);
  EXPECT_EQ(count(ended), 1);
  EXPECT_EQ(timeOf(ended), 90);
}

TEST_F(CSTimerViewControllerTest, NoDateRemovesIt) {
  const auto controller = make();
  countDown(controller.get(), 60);
  objc::send<void, "setEndDate:">(controller.get(), nullptr);
  EXPECT_FALSE(counts(controller.get()));
  EXPECT_EQ(journal().back(), "-[CSTimerViewController setEndDate:nil]");
  advance(1000);
  EXPECT_EQ(count(ended), 0);
}

TEST_F(CSTimerViewControllerTest, ADateInThePastStartsNothing) {
  const auto controller = make();
  countDown(controller.get(), -60);
  advance(1000);
  EXPECT_EQ(count(ended), 0);
}

TEST_F(CSTimerViewControllerTest, TheSameDateAgainChangesNothing) {
  const auto controller = make();
  const objc::Object end = date(phone.clock.wall() + 60);
  objc::send<void, "setEndDate:">(controller.get(), end);
  objc::send<void, "setEndDate:">(controller.get(), end);
  EXPECT_EQ(count("-[CSTimerViewController setEndDate:2027-01-01 22:01:00 +0000]"), 1);
}

TEST_F(CSTimerViewControllerTest, TheClockAnswersAfterTheTurnInWhichItWasAsked) {
  const auto controller = make();
  ClockTimer::current().start(60);
  EXPECT_FALSE(counts(controller.get()));
  countDown(controller.get(), 90);
  advance(0);
  advance(1000);
  EXPECT_EQ(timeOf(ended), 60);
}

TEST_F(CSTimerViewControllerTest, FollowsAWallClockThatIsSetBack) {
  const auto controller = make();
  countDown(controller.get(), 60);
  phone.clock.setWall(phone.clock.wall() - 3600);
  advance(3659);
  EXPECT_TRUE(counts(controller.get()));
  advance(1);
  EXPECT_EQ(timeOf(ended), 3660);
}

TEST_F(CSTimerViewControllerTest, EndsAtTheMomentThatWasMeant) {
  const auto controller = make();
  advance(1.1);
  countDown(controller.get(), 60.2);
  advance(1000);
  EXPECT_EQ(timeOf(ended), 61.3);
}

TEST_F(CSTimerViewControllerTest, MayNeverEnd) {
  const auto controller = make();
  objc::send<void, "setEndDate:">(
      controller.get(), objc::send<objc::Object, "distantFuture">(objc_getClass("NSDate")));
  countDown(controller.get(), 1e300);
  advance(100'000);
  EXPECT_TRUE(counts(controller.get()));
}

TEST_F(CSTimerViewControllerTest, MayGoBeforeTheEnd) {
  {
    const objc::AutoreleasePool pool;
    countDown(make().get(), 60);
  }
  advance(1000);
  EXPECT_EQ(count(ended), 0);
}

}  // namespace
}  // namespace sim
