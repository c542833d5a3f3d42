#include "simulator/foundation/NSRunLoop.h"
#include "simulator/machine/RunLoopMode.h"
#include "simulator/standin/StandIn.h"
#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using objc::Object;
using objc::send;

struct PerformListener : objc::Implementation<PerformListener> {
  std::vector<std::string> heard;

  void hear(Object what) { heard.push_back(notation(what)); }

  static void registerClass() {
    if (cls() == nullptr)
      StandIn<PerformListener>("Test", "PerformListener", "NSObject")
          .method<"hear:", &PerformListener::hear>()
          .finish();
  }
};

class DelayedPerformsTest : public FoundationTest {
 protected:
  DelayedPerformsTest() { PerformListener::registerClass(); }

  static void perform(Object target, Object argument, double delay) {
    send<void, "performSelector:withObject:afterDelay:">(target, sel_registerName("hear:"),
                                                         argument, delay);
  }
  using Lines = std::vector<std::string>;
};

TEST_F(DelayedPerformsTest, runAfterTheirDelayInOrder) {
  const auto listener = PerformListener::make();
  perform(listener, string("late"), 2);
  perform(listener, string("early"), 0);
  perform(listener, nullptr, 0);
  EXPECT_TRUE(PerformListener::of(listener.get()).heard.empty());
  advance(0);
  EXPECT_EQ(PerformListener::of(listener.get()).heard, (Lines{"\"early\"", "nil"}));
  advance(1.999);
  EXPECT_EQ(PerformListener::of(listener.get()).heard.size(), 2u);
  advance(0.001);
  EXPECT_EQ(PerformListener::of(listener.get()).heard.back(), "\"late\"");
}

TEST_F(DelayedPerformsTest, runInTheDefaultModeOnly) {
  const auto listener = PerformListener::make();
  const auto& heard = PerformListener::of(listener.get()).heard;
  {
    const Tracking scrolling;
    perform(listener, string("second"), 2);
    perform(listener, string("first"), 1);
    perform(listener, string("cancelled"), 1);
    send<void, "performSelector:withObject:afterDelay:inModes:">(
        listener.get(), sel_registerName("hear:"), string("common"), 1.0,
        array({Object(NSRunLoopCommonModes)}));
    advance(3);
    EXPECT_EQ(heard, (Lines{"\"common\""}));
    send<void, "cancelPreviousPerformRequestsWithTarget:selector:object:">(
        cls("NSObject"), listener.get(), sel_registerName("hear:"), string("cancelled"));
  }
  EXPECT_EQ(heard.size(), 1u);
  advance(0);
  EXPECT_EQ(heard, (Lines{"\"common\"", "\"first\"", "\"second\""}));
}

TEST_F(DelayedPerformsTest, keepTheirTarget) {
  auto listener = PerformListener::make();
  const auto watched = objc::weak(listener.get());
  {
    const objc::AutoreleasePool pool;
    perform(listener, string("x"), 1);
  }
  listener = nullptr;
  EXPECT_TRUE(watched.load());
  advance(1);
  EXPECT_FALSE(watched.load());
}

TEST_F(DelayedPerformsTest, areCancelledByTarget) {
  const auto listener = PerformListener::make();
  const auto other = PerformListener::make();
  perform(listener, string("x"), 1);
  perform(other, string("y"), 1);
  send<void, "cancelPreviousPerformRequestsWithTarget:">(cls("NSObject"), listener.get());
  advance(1);
  EXPECT_TRUE(PerformListener::of(listener.get()).heard.empty());
  EXPECT_EQ(PerformListener::of(other.get()).heard.size(), 1u);
}

TEST_F(DelayedPerformsTest, areCancelledByEqualArgument) {
  const auto listener = PerformListener::make();
  perform(listener, string("x"), 1);
  perform(listener, string("y"), 1);
  perform(listener, nullptr, 1);
  const auto other = PerformListener::make();
  perform(other, string("x"), 1);
  const auto cancel = [&](Object argument) {
    send<void, "cancelPreviousPerformRequestsWithTarget:selector:object:">(
        cls("NSObject"), listener.get(), sel_registerName("hear:"), argument);
  };
  cancel(string("x"));
  cancel(nullptr);
  advance(1);
  EXPECT_EQ(PerformListener::of(listener.get()).heard, Lines{"\"y\""});
  EXPECT_EQ(PerformListener::of(other.get()).heard, Lines{"\"x\""});
}

TEST_F(DelayedPerformsTest, onTheMainThreadRunAtOnceWhenWaitedFor) {
  const auto listener = PerformListener::make();
  const auto perform = [&](bool wait) {
    send<void, "performSelectorOnMainThread:withObject:waitUntilDone:">(
        listener.get(), sel_registerName("hear:"), Object(string("x")), wait);
  };
  perform(true);
  EXPECT_EQ(PerformListener::of(listener.get()).heard.size(), 1u);
  perform(false);
  EXPECT_EQ(PerformListener::of(listener.get()).heard.size(), 1u);
  advance(0);
  EXPECT_EQ(PerformListener::of(listener.get()).heard.size(), 2u);
}

}  // namespace
}  // namespace sim
