// Messages, overrides and hooks whose types disagree with the runtime's stop with a sentence that
// names class, selector, place, expected and found.
#include <gtest/gtest.h>

#include "objc/Block.h"
#include "objc/Class.h"
#include "objc/Hook.h"
#include "tests/bridge/SampleTypes.h"

namespace {

using objc::Object;
using objc::Original;

struct Timer : objc::Implementation<Timer> {
  void startWithMode_andValue(long, double) {}
  bool isRunning() { return true; }
  bridge::Doubles32 frame() { return {}; }
  void setFrame(bridge::Doubles32) {}
  void setHandler(objc::Object) {}
  static long count() { return 1; }

  static Class registerClass() {
    return objc::ClassBuilder<Timer>("Timer", "NSObject")
        .method<"startWithMode:andValue:", &Timer::startWithMode_andValue>()
        .method<"isRunning", &Timer::isRunning>()
        .method<"frame", &Timer::frame>()
        .method<"setFrame:", &Timer::setFrame>()
        .method<"setHandler:", &Timer::setHandler>()
        .classMethod<"count", &Timer::count>()
        .finish();
  }
};

struct TypeMismatches : testing::Test {
  static void SetUpTestSuite() {
    if (Timer::cls() == nullptr) Timer::registerClass();
    ASSERT_TRUE(Timer::cls());
  }
  objc::Strong<Object> timer = Timer::make();
};
using TypeMismatchesDeathTest = TypeMismatches;

TEST_F(TypeMismatchesDeathTest, InASendNameTheArgument) {
  EXPECT_DEATH(
      (objc::send<void, "startWithMode:andValue:">(timer, 0, 61.0)),
      "type mismatch in send of -\\[Timer startWithMode:andValue:\\]: argument 1: expected 'q', "
      "found 'i'");
  EXPECT_DEATH(
      (objc::send<void, "startWithMode:andValue:">(timer, 0L, 61L)),
      "type mismatch in send of -\\[Timer startWithMode:andValue:\\]: argument 2: expected 'd', "
      "found 'q'");
}

TEST_F(TypeMismatchesDeathTest, InASendNameTheResult) {
  EXPECT_DEATH((objc::send<long, "isRunning">(timer)),
               "type mismatch in send of -\\[Timer isRunning\\]: result: expected 'B', found 'q'");
  EXPECT_DEATH((objc::send<void, "isRunning">(timer)), "expected 'B', found 'v'");
}

TEST_F(TypeMismatchesDeathTest, InStructuresAreSeen) {
  EXPECT_DEATH((objc::send<bridge::Doubles16, "frame">(timer)),
               "-\\[Timer frame\\]: result: expected "
               "'\\{Doubles32=\\{Doubles16=dd\\}\\{Doubles16=dd\\}\\}', "
               "found '\\{Doubles16=dd\\}'");
  EXPECT_DEATH((objc::send<void, "setFrame:">(timer, bridge::Mixed32{})),
               "-\\[Timer setFrame:\\]: argument 1: expected '\\{Doubles32=.*', "
               "found '\\{Mixed32=dqfS\\^v\\}'");
}

TEST_F(TypeMismatchesDeathTest, InASendToAClassAreMarkedWithAPlus) {
  EXPECT_DEATH((objc::send<int, "count">(Timer::cls())),
               "type mismatch in send of \\+\\[Timer count\\]: result: expected 'q', found 'i'");
}

TEST_F(TypeMismatchesDeathTest, InASendAreFoundInEveryClassAtOnePlaceInTheCode) {
  struct Other : objc::Implementation<Other> {
    long isRunning() { return 1; }
  };
  objc::ClassBuilder<Other>("Other", "NSObject").method<"isRunning", &Other::isRunning>().finish();
  auto other = Other::make();
  auto ask = [](Object receiver) { return objc::send<bool, "isRunning">(receiver); };
  EXPECT_TRUE(ask(timer));
  EXPECT_DEATH(ask(other), "-\\[Other isRunning\\]: result: expected 'q', found 'B'");
}

struct Snooze : objc::Implementation<Snooze> {
  void start(int, double) {}
  long isRunning() { return 0; }
  static int count() { return 1; }
  long superIsRunning() { return super<long, "isRunning">(); }
};

TEST_F(TypeMismatchesDeathTest, InAnOverrideStopTheRegistration) {
  objc::ClassBuilder<Snooze> builder("Snooze", "Timer");
  EXPECT_DEATH(
      (builder.method<"startWithMode:andValue:", &Snooze::start>()),
      "type mismatch in override of -\\[Snooze startWithMode:andValue:\\]: argument 1: expected "
      "'q', found 'i'");
  EXPECT_DEATH((builder.method<"isRunning", &Snooze::isRunning>()),
               "override of -\\[Snooze isRunning\\]: result: expected 'B', found 'q'");
  EXPECT_DEATH((builder.classMethod<"count", &Snooze::count>()),
               "class method override of \\+\\[Snooze count\\]: result: expected 'q', found 'i'");
}

TEST_F(TypeMismatchesDeathTest, InASendToSuperNameTheClassAbove) {
  objc::ClassBuilder<Snooze>("NapTimer", "Timer")
      .method<"superIsRunning", &Snooze::superIsRunning>()
      .finish();
  auto snooze = Snooze::make();
  EXPECT_DEATH((objc::send<long, "superIsRunning">(snooze)),
               "send to super of -\\[Timer isRunning\\]: result: expected 'B', found 'q'");
}

void startHook(Original<void(Object, long, float)> original, Object self, long mode, float value) {
  original(self, mode, value);
}
int countHook(Original<int(Object)> original, Object self) {
  return original(self);
}

TEST_F(TypeMismatchesDeathTest, InAHookStopTheInstallation) {
  EXPECT_DEATH((objc::hook<"Timer", "startWithMode:andValue:", startHook>()),
               "type mismatch in hook of -\\[Timer startWithMode:andValue:\\]: argument 2: "
               "expected 'd', found 'f'");
  EXPECT_DEATH((objc::hook<"Timer", "count", countHook>()),
               "type mismatch in hook of \\+\\[Timer count\\]: result: expected 'q', found 'i'");
}

TEST_F(TypeMismatches, OfObjectsClassesAndBlocksAreNone) {
  objc::send<void, "setHandler:">(timer, objc::block<void()>([] {}).get());
  objc::send<void, "setHandler:">(timer, Timer::cls());
  objc::send<void, "setHandler:">(timer, nullptr);
}

}  // namespace
