#include "objc/Class.h"
#include "simulator/machine/WallClock.h"
#include "simulator/runtime/LiveObjects.h"
#include "tests/hosts/TestHost.h"

namespace sim {
namespace {

struct Sleeper : objc::Implementation<Sleeper> {
  static inline int wakes;
  static inline objc::Object passed;
  void timerDidFire() { ++wakes; }
  void timerDidFireWith(objc::Object timer) { passed = timer; }

  static void registerClass() {
    objc::ClassBuilder<Sleeper>("TestSleeper", "NSObject")
        .method<"timerDidFire", &Sleeper::timerDidFire>()
        .method<"timerDidFire:", &Sleeper::timerDidFireWith>()
        .finish();
  }
};

std::size_t live(const char* className) {
  return sim::runtime::liveInstanceCount(objc_getClass(className));
}

class PCSimpleTimerTest : public TestHost {
 protected:
  PCSimpleTimerTest() {
    boot();
    Sleeper::registerClass();
  }

  objc::Strong<objc::Object> make(objc::Object target, SEL selector) {
    return objc::adopt(objc::send<objc::Object,
                                  "initWithTimeInterval:serviceIdentifier:target:selector:"
                                  "userInfo:">(objc_alloc(objc_getClass("PCSimpleTimer")), 60.0,
                                               string("test.sleep"), target, selector,
                                               string("info")));
  }
  objc::Strong<objc::Object> make() {
    return make(Sleeper::make().get(), objc::selector<"timerDidFire">());
  }

  void schedule(objc::Object timer) {
    objc::send<void, "scheduleInRunLoop:">(
        timer, objc::send<objc::Object, "mainRunLoop">(objc_getClass("NSRunLoop")));
  }

  objc::Object fireTimer(objc::Object timer) {
    return objc::send<objc::Object, "valueForKey:">(timer, string("_fireTimer"));
  }
  double secondsLeft(objc::Object timer) {
    return objc::send<double, "timeIntervalSinceNow">(
        objc::send<objc::Object, "fireDate">(fireTimer(timer)));
  }
  bool isValid(objc::Object timer) { return objc::send<bool, "isValid">(timer); }
};

TEST_F(PCSimpleTimerTest, FiresOnceAfterItsInterval) {
  const auto timer = make();
  schedule(timer.get());
  advance(59.9);
  EXPECT_EQ(Sleeper::wakes, 0);
  EXPECT_TRUE(isValid(timer.get()));
  advance(0.1);
  EXPECT_EQ(Sleeper::wakes, 1);
  EXPECT_FALSE(isValid(timer.get()));
  advance(600);
  EXPECT_EQ(Sleeper::wakes, 1);
  EXPECT_EQ(timeOf("-[PCSimpleTimer scheduleInRunLoop:]"), 0);
  EXPECT_EQ(timeOf("-[PCSimpleTimer fire] \"test.sleep\""), 60);
}

TEST_F(PCSimpleTimerTest, AnUnscheduledTimerNeverFires) {
  const auto timer = make();
  EXPECT_FALSE(fireTimer(timer.get()));
  advance(600);
  EXPECT_EQ(Sleeper::wakes, 0);
}

TEST_F(PCSimpleTimerTest, TheIntervalCountsFromTheMaking) {
  const auto timer = make();
  advance(20);
  schedule(timer.get());
  EXPECT_EQ(secondsLeft(timer.get()), 40);
  advance(40);
  EXPECT_EQ(Sleeper::wakes, 1);
}

TEST_F(PCSimpleTimerTest, TheFireDateStaysReadableAfterFiring) {
  const auto timer = make();
  schedule(timer.get());
  advance(20);
  EXPECT_EQ(secondsLeft(timer.get()), 40);
  advance(45);
  EXPECT_EQ(secondsLeft(timer.get()), -5);
}

TEST_F(PCSimpleTimerTest, SinceIOS16TheFireTimerIsGoneAfterFiring) {
  phone.setup.systemVersion = "16.0";
  const auto timer = make();
  schedule(timer.get());
  EXPECT_TRUE(fireTimer(timer.get()));
  advance(60);
  EXPECT_EQ(Sleeper::wakes, 1);
  EXPECT_FALSE(fireTimer(timer.get()));
}

TEST_F(PCSimpleTimerTest, FiresAtItsMomentOfTheWallClock) {
  const auto timer = make();
  schedule(timer.get());
  moveWallClock(10);
  EXPECT_EQ(secondsLeft(timer.get()), 50);
  advance(49.9);
  EXPECT_EQ(Sleeper::wakes, 0);
  moveWallClock(-60);
  advance(60);
  EXPECT_EQ(Sleeper::wakes, 0);
  advance(0.1);
  EXPECT_EQ(Sleeper::wakes, 1);
}

TEST_F(PCSimpleTimerTest, FiresAtOnceWhenTheClockGoesPastItsMoment) {
  const auto timer = make();
  schedule(timer.get());
  moveWallClock(61);
  advance(0);
  EXPECT_EQ(Sleeper::wakes, 1);
}

TEST_F(PCSimpleTimerTest, FiresAtOnceWhenTheClockGoesBackByMoreThanAMinute) {
  const auto timer = make(), unscheduled = make();
  schedule(timer.get());
  moveWallClock(-61);
  EXPECT_EQ(Sleeper::wakes, 0);
  advance(0);
  EXPECT_EQ(Sleeper::wakes, 1);
}

TEST_F(PCSimpleTimerTest, CallsItsTargetATurnAfterItHasFired) {
  const auto timer = make();
  schedule(timer.get());
  phone.queue.add(nanoseconds(60), [] { EXPECT_EQ(Sleeper::wakes, 0); });
  advance(60);
  EXPECT_EQ(Sleeper::wakes, 1);
}

TEST_F(PCSimpleTimerTest, AnInvalidatedTimerNeverFires) {
  const auto timer = make();
  schedule(timer.get());
  objc::send<void, "invalidate">(timer.get());
  objc::send<void, "invalidate">(timer.get());
  EXPECT_FALSE(fireTimer(timer.get()));
  advance(600);
  EXPECT_EQ(Sleeper::wakes, 0);
  EXPECT_EQ(count("-[PCSimpleTimer invalidate]"), 1);
}

TEST_F(PCSimpleTimerTest, ASelectorWithAColonGetsTheTimer) {
  const auto timer = make(Sleeper::make().get(), objc::selector<"timerDidFire:">());
  schedule(timer.get());
  advance(60);
  EXPECT_EQ(Sleeper::passed, timer.get());
}

TEST_F(PCSimpleTimerTest, ADroppedTimerStillFires) {
  {
    const objc::AutoreleasePool pool;
    schedule(make().get());
  }
  moveWallClock(10);
  advance(50);
  EXPECT_EQ(Sleeper::wakes, 1);
}

TEST_F(PCSimpleTimerTest, LeavesNothingBehindWhenItHasFired) {
  {
    const objc::AutoreleasePool pool;
    schedule(make().get());
    EXPECT_EQ(live("TestSleeper"), 1U);
  }
  advance(60);
  EXPECT_EQ(live("TestSleeper"), 0U);
  EXPECT_EQ(live("PCSimpleTimer"), 0U);
  EXPECT_EQ(live("PCDispatchTimer"), 0U);
}

TEST_F(PCSimpleTimerTest, LetsItsTargetGoWhenItHasFired) {
  objc::Strong<objc::Object> timer;
  {
    const objc::AutoreleasePool pool;
    timer = make();
    schedule(timer.get());
  }
  advance(59);
  EXPECT_EQ(live("TestSleeper"), 1U);
  advance(1);
  EXPECT_EQ(live("TestSleeper"), 0U);
}

TEST_F(PCSimpleTimerTest, LeavesNothingBehindWhenInvalidated) {
  {
    const objc::AutoreleasePool pool;
    const auto timer = make();
    schedule(timer.get());
    objc::send<void, "invalidate">(timer.get());
    EXPECT_EQ(live("TestSleeper"), 0U);
  }
  EXPECT_EQ(live("PCSimpleTimer"), 0U);
}

TEST_F(PCSimpleTimerTest, KeepsItsUserInfo) {
  EXPECT_EQ(text(objc::send<objc::Object, "userInfo">(make().get())), "info");
}

}  // namespace
}  // namespace sim
