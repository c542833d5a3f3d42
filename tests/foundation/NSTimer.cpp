#include "simulator/foundation/NSTimer.h"

#include <functional>

#include "simulator/foundation/NSRunLoop.h"
#include "simulator/standin/StandIn.h"
#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using objc::Object;
using objc::send;
using objc::Strong;

struct Target : objc::Implementation<Target> {
  std::vector<double> fired;  // seconds of uptime
  std::function<void(Object)> whenFired;

  void fire(Object timer) {
    fired.push_back(seconds(Phone::current().clock.uptime()));
    if (whenFired) whenFired(timer);
  }

  static void registerClass() {
    if (cls() == nullptr)
      StandIn<Target>("Test", "TimerTarget", "NSObject").method<"fire:", &Target::fire>().finish();
  }
};

class NSTimerTest : public FoundationTest {
 protected:
  NSTimerTest() { Target::registerClass(); }

  static Object schedule(Object target, double interval, bool repeats, Object info = nullptr) {
    return send<Object, "scheduledTimerWithTimeInterval:target:selector:userInfo:repeats:">(
        cls("NSTimer"), interval, target, sel_registerName("fire:"), info, repeats);
  }
  static bool isValid(Object timer) { return send<bool, "isValid">(timer); }
  double now() const { return seconds(phone.clock.uptime()); }
  using Times = std::vector<double>;
};

TEST_F(NSTimerTest, firesOnceAndIsInvalidThen) {
  const auto target = Target::make();
  const double start = now();
  const Object timer = schedule(target, 61, false, string("info"));
  bool validWhileFiring = false;
  Target::of(target.get()).whenFired = [&](Object firing) {
    validWhileFiring = isValid(firing);
    EXPECT_EQ(notation(send<Object, "userInfo">(firing)), "\"info\"");
  };
  EXPECT_TRUE(isValid(timer));
  advance(60.999);
  EXPECT_TRUE(Target::of(target.get()).fired.empty());
  advance(100);
  EXPECT_EQ(Target::of(target.get()).fired, Times{start + 61});
  EXPECT_TRUE(validWhileFiring);
  EXPECT_FALSE(isValid(timer));
}

TEST_F(NSTimerTest, repeatsWithoutDrift) {
  const auto target = Target::make();
  const double start = now();
  const Object timer = schedule(target, 0.1, true);
  advance(100);
  EXPECT_EQ(Target::of(target.get()).fired.size(), 1000u);
  EXPECT_DOUBLE_EQ(Target::of(target.get()).fired.back(), start + 100);
  EXPECT_EQ((send<double, "timeInterval">(timer)), 0.1);
  send<void, "invalidate">(timer);
  advance(1);
  EXPECT_EQ(Target::of(target.get()).fired.size(), 1000u);
}

TEST_F(NSTimerTest, keepsItsTargetUntilItIsInvalidated) {
  auto target = Target::make();
  const auto watched = objc::weak(target.get());
  Strong<Object> timer;
  {
    const objc::AutoreleasePool pool;
    timer = objc::retain(schedule(target, 10, true));
  }
  target = nullptr;
  EXPECT_TRUE(watched.load());
  send<void, "invalidate">(timer.get());
  EXPECT_FALSE(watched.load());
}

TEST_F(NSTimerTest, mayBeInvalidatedWhileItFires) {
  const auto target = Target::make();
  schedule(target, 1, true);
  Target::of(target.get()).whenFired = [](Object timer) { send<void, "invalidate">(timer); };
  advance(5);
  EXPECT_EQ(Target::of(target.get()).fired.size(), 1u);
}

TEST_F(NSTimerTest, runsBlocks) {
  int calls = 0;
  const auto block = objc::block<void(Object)>([&](Object timer) {
    if (++calls == 3) send<void, "invalidate">(timer);
  });
  send<Object, "scheduledTimerWithTimeInterval:repeats:block:">(cls("NSTimer"), 1.0, true,
                                                                block.get());
  advance(10);
  EXPECT_EQ(calls, 3);
}

TEST_F(NSTimerTest, waitsForARunLoop) {
  const auto target = Target::make();
  const double start = now();
  const Object timer = send<Object, "timerWithTimeInterval:target:selector:userInfo:repeats:">(
      cls("NSTimer"), 2.0, target.get(), sel_registerName("fire:"), Object(), false);
  advance(1);
  const Object loop = send<Object, "mainRunLoop">(cls("NSRunLoop"));
  send<void, "addTimer:forMode:">(loop, timer, Object(NSRunLoopCommonModes));
  send<void, "addTimer:forMode:">(loop, timer, Object(NSDefaultRunLoopMode));
  advance(5);
  EXPECT_EQ(Target::of(target.get()).fired, Times{start + 2});
}

TEST_F(NSTimerTest, isScheduledOnceHoweverOftenItIsAdded) {
  const auto target = Target::make();
  const Object timer = schedule(target, 1, true);
  send<void, "addTimer:forMode:">(send<Object, "mainRunLoop">(cls("NSRunLoop")), timer,
                                  Object(NSRunLoopCommonModes));
  advance(3);
  EXPECT_EQ(Target::of(target.get()).fired.size(), 3u);
  send<void, "invalidate">(timer);
}

TEST_F(NSTimerTest, waitsForItsMode) {
  const auto target = Target::make(), always = Target::make();
  const double start = now();
  const Object timer = schedule(target, 1, true);
  const Object common = schedule(always, 1, true);
  send<void, "addTimer:forMode:">(send<Object, "mainRunLoop">(cls("NSRunLoop")), common,
                                  Object(NSRunLoopCommonModes));
  {
    const Tracking scrolling;
    advance(2.5);
    EXPECT_TRUE(Target::of(target.get()).fired.empty());
    EXPECT_EQ(Target::of(always.get()).fired.size(), 2u);
  }
  EXPECT_TRUE(Target::of(target.get()).fired.empty());
  advance(1);
  EXPECT_EQ(Target::of(target.get()).fired, (Times{start + 2.5, start + 3}));
  EXPECT_EQ(Target::of(always.get()).fired.size(), 3u);
  send<void, "invalidate">(timer);
  send<void, "invalidate">(common);
}

TEST_F(NSTimerTest, firesAtOnceWhenAskedTo) {
  const auto target = Target::make();
  const Object once = schedule(target, 5, false);
  const Object again = schedule(target, 5, true);
  send<void, "fire">(once);
  send<void, "fire">(again);
  send<void, "fire">(once);
  EXPECT_EQ(Target::of(target.get()).fired.size(), 2u);
  EXPECT_FALSE(isValid(once));
  EXPECT_TRUE(isValid(again));
  advance(5);
  EXPECT_EQ(Target::of(target.get()).fired.size(), 3u);
  send<void, "invalidate">(again);
}

TEST_F(NSTimerTest, tellsAndChangesItsFireDate) {
  const auto target = Target::make();
  const double start = now();
  const Object timer = schedule(target, 10, false);
  const Object date = send<Object, "fireDate">(timer);
  EXPECT_NEAR((send<double, "timeIntervalSinceNow">(date)), 10, 1e-6);
  send<void, "setFireDate:">(timer, send<Object, "dateByAddingTimeInterval:">(date, -7.0));
  advance(20);
  EXPECT_EQ(Target::of(target.get()).fired, Times{start + 3});
}

TEST_F(NSTimerTest, isMovedWhileItFires) {
  const auto target = Target::make();
  const double start = now();
  const Object timer = schedule(target, 10, true);
  Target::of(target.get()).whenFired = [&](Object firing) {
    const Object soon = send<Object, "dateWithTimeIntervalSinceNow:">(cls("NSDate"), 1.0);
    send<void, "setFireDate:">(firing, soon);
  };
  advance(12.5);
  EXPECT_EQ(Target::of(target.get()).fired, (Times{start + 10, start + 11, start + 12}));
  send<void, "invalidate">(timer);
}

TEST_F(NSTimerTest, startsAtADate) {
  const auto target = Target::make();
  const double start = now();
  const Object date = send<Object, "dateWithTimeIntervalSinceNow:">(cls("NSDate"), 0.3);
  const auto timer =
      objc::adopt(Object(send<id, "initWithFireDate:interval:target:selector:userInfo:repeats:">(
          objc_alloc(cls("NSTimer")), date, 2.0, target.get(), sel_registerName("fire:"), Object(),
          true)));
  send<void, "addTimer:forMode:">(send<Object, "mainRunLoop">(cls("NSRunLoop")), timer.get(),
                                  Object(NSDefaultRunLoopMode));
  advance(3);
  EXPECT_EQ(Target::of(target.get()).fired.size(), 2u);
  EXPECT_DOUBLE_EQ(Target::of(target.get()).fired[0], start + 0.3);
  EXPECT_DOUBLE_EQ(Target::of(target.get()).fired[1], start + 2.3);
  send<void, "invalidate">(timer.get());
}

TEST_F(NSTimerTest, replacesIntervalsThatAreNotPositive) {
  const auto target = Target::make();
  const double start = now();
  schedule(target, 0, false);
  advance(0);
  EXPECT_TRUE(Target::of(target.get()).fired.empty());
  advance(1);
  EXPECT_EQ(Target::of(target.get()).fired, Times{start + 0.0001});
}

TEST_F(NSTimerTest, waitsForTheDistantFuture) {
  const auto target = Target::make();
  const Object timer = schedule(target, 1, true);
  send<void, "setFireDate:">(timer, send<Object, "distantFuture">(cls("NSDate")));
  const Object endless = schedule(target, 1e300, true);
  advance(1e6);
  EXPECT_TRUE(Target::of(target.get()).fired.empty());
  send<void, "setFireDate:">(timer, send<Object, "distantPast">(cls("NSDate")));
  advance(0);
  EXPECT_EQ(Target::of(target.get()).fired.size(), 1u);
  send<void, "invalidate">(timer);
  send<void, "invalidate">(endless);
}

TEST_F(NSTimerTest, leavesOutTheTimesItMissed) {
  const auto target = Target::make();
  const double start = now();
  const Object timer = schedule(target, 1, true);
  Target::of(target.get()).whenFired = [&](Object) {
    if (Target::of(target.get()).fired.size() == 1) advance(2.5);  // a long call
  };
  advance(5);
  EXPECT_EQ(Target::of(target.get()).fired, (Times{start + 1, start + 4, start + 5}));
  send<void, "invalidate">(timer);
}

TEST_F(NSTimerTest, doesNotFollowTheWallClock) {
  const auto target = Target::make();
  const double wall = phone.clock.wall();
  schedule(target, 10, false);
  phone.clock.setWall(wall + 3600);
  advance(9);
  EXPECT_TRUE(Target::of(target.get()).fired.empty());
  advance(1);
  EXPECT_EQ(Target::of(target.get()).fired.size(), 1u);
}

}  // namespace
}  // namespace sim
