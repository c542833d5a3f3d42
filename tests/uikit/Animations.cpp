#include "simulator/uikit/touches/Finger.h"
#include "simulator/uikit/views/ViewTree.h"
#include "tests/uikit/UIKitTest.h"

namespace sim {
namespace {

// Of a view in a window that fades, if nothing else is said.
class Animations : public UIKitTest {
 protected:
  Animations()
      : fade_(objc::block<void()>([this] { send<void, "setAlpha:">(view.get(), 0.5); })),
        nothing_(objc::block<void()>([] {})),
        ended_(objc::block<void(bool)>([this](bool finished) {
          hasFinished = finished;
          endedAt = seconds(phone.clock.uptime());
        })) {}
  void SetUp() override {
    UIKitTest::SetUp();
    start = seconds(phone.clock.uptime());
    window = shownWindow();
    parent = make("UIView", rect(0, 0, 300, 300));
    view = make("UIView", rect(10, 10, 100, 100));
    add(window, parent);
    add(parent, view);
  }
  void TearDown() override {
    view = parent = window = nullptr;
    UIKitTest::TearDown();
  }

  void animate(double duration, objc::Block<void()> changes) {
    send<void, "animateWithDuration:animations:completion:">(cls("UIView"), duration, changes,
                                                             ended());
  }
  void animateWith(unsigned long options) {
    send<void, "animateWithDuration:delay:options:animations:completion:">(
        cls("UIView"), 0.3, 0.0, options, fade(), ended());
  }
  void dissolve(Object from, Object to, unsigned long options = 0x500000) {
    send<void, "transitionFromView:toView:duration:options:completion:">(cls("UIView"), from, to,
                                                                         0.3, options, ended());
  }
  void expectEnd(double after, bool finished) {
    EXPECT_DOUBLE_EQ(endedAt, start + after);
    EXPECT_EQ(hasFinished, finished);
  }
  Object touchedAt(double x, double y) {
    return send<Object, "hitTest:withEvent:">(window.get(), CGPoint{x, y}, Object());
  }

  objc::Block<void()> fade() const { return fade_.get(); }
  objc::Block<void()> nothing() const { return nothing_.get(); }
  objc::Block<void(bool)> ended() const { return ended_.get(); }

  Strong<Object> window, parent, view;
  double start = 0;
  double endedAt = -1;
  bool hasFinished = false;

 private:
  Strong<objc::Block<void()>> fade_, nothing_;
  Strong<objc::Block<void(bool)>> ended_;
};

TEST_F(Animations, ChangeAtOnceAndEndLater) {
  animate(0.3, fade());
  EXPECT_EQ((send<double, "alpha">(view.get())), 0.5);
  advance(0.29);
  EXPECT_EQ(endedAt, -1);
  advance(0.02);
  expectEnd(0.3, true);
}

TEST_F(Animations, WaitForTheirDelay) {
  send<void, "animateWithDuration:delay:options:animations:completion:">(cls("UIView"), 0.3, 0.5,
                                                                         0UL, fade(), ended());
  advance(1);
  expectEnd(0.8, true);
}

TEST_F(Animations, OfNothingEndWithTheNextTurn) {
  animate(0.0, fade());
  EXPECT_EQ(endedAt, -1);
  advance(0);
  expectEnd(0, true);
  endedAt = -1;
  animate(5.0, nothing());
  EXPECT_EQ(endedAt, -1);
  advance(0);
  expectEnd(0, true);
  endedAt = -1;
  animate(5.0, fade());  // as transparent as it is
  advance(0);
  expectEnd(0, true);
}

TEST_F(Animations, OutOfWindowsEndWithTheNextTurn) {
  send<void, "removeFromSuperview">(parent.get());
  animate(0.3, fade());
  EXPECT_EQ(endedAt, -1);
  advance(0);
  expectEnd(0, true);
  endedAt = -1;
  const auto to = make("UIView");
  dissolve(view, to);
  advance(0);
  expectEnd(0, true);
}

TEST_F(Animations, EndUnfinishedWhenTheirViewLeavesItsWindow) {
  animate(0.3, fade());
  advance(0.1);
  send<void, "removeFromSuperview">(parent.get());
  expectEnd(0.1, false);
  advance(1);
  expectEnd(0.1, false);
}

TEST_F(Animations, EndUnfinishedWhenTheyAreRemoved) {
  const auto other = make("UIView", rect(0, 0, 10, 10));
  add(parent, other);
  const auto both = objc::block<void()>([this, &other] {
    send<void, "setAlpha:">(view.get(), 0.5);
    send<void, "setAlpha:">(other.get(), 0.5);
  });
  animate(0.3, both.get());
  advance(0.1);
  send<void, "removeAllAnimations">(send<Object, "layer">(view.get()));
  EXPECT_EQ(endedAt, -1);  // the other goes on
  send<void, "removeAllAnimations">(send<Object, "layer">(other.get()));
  expectEnd(0.1, false);
}

TEST_F(Animations, NobodyNeedsToHearOfTheEnd) {
  send<void, "animateWithDuration:animations:">(cls("UIView"), 0.4, fade());
  send<void,
       "animateWithDuration:delay:usingSpringWithDamping:initialSpringVelocity:options:"
       "animations:completion:">(cls("UIView"), 0.3, 0.0, 0.3, 5.0, 2UL, nothing(),
                                 objc::Block<void(bool)>(nullptr));
  advance(1);
  EXPECT_EQ(endedAt, -1);
}

TEST_F(Animations, ATransitionExchangesTheViews) {
  const auto to = make("UIView");
  dissolve(view, to);
  EXPECT_FALSE((send<Object, "superview">(view.get())));
  EXPECT_EQ((send<Object, "superview">(to.get())), parent.get());
  EXPECT_FALSE((send<bool, "isHidden">(view.get())));
  advance(0.3);
  expectEnd(0.3, true);
}

TEST_F(Animations, OrATransitionOnlyHidesAndShows) {
  const auto to = make("UIView");
  add(parent, to);
  send<void, "setHidden:">(to.get(), true);
  dissolve(view, to, 0x500100);
  EXPECT_EQ((send<Object, "superview">(view.get())), parent.get());
  EXPECT_TRUE((send<bool, "isHidden">(view.get())));
  EXPECT_FALSE((send<bool, "isHidden">(to.get())));
}

TEST_F(Animations, ATransitionTakesThePlaceOfTheOneBefore) {
  const auto to = make("UIView");
  dissolve(view, to);
  advance(0.1);
  send<void, "transitionFromView:toView:duration:options:completion:">(
      cls("UIView"), to.get(), view.get(), 0.3, 0x500000UL, objc::Block<void(bool)>(nullptr));
  expectEnd(0.1, false);
}

TEST_F(Animations, CanBeSwitchedOffForAWhile) {
  const auto body = objc::block<void()>([this] { animate(0.2, fade()); });
  send<void, "performWithoutAnimation:">(cls("UIView"), body.get());
  EXPECT_EQ(endedAt, -1);
  advance(0);
  expectEnd(0, true);
  EXPECT_TRUE((send<bool, "areAnimationsEnabled">(cls("UIView"))));
}

TEST_F(Animations, KeepTouchesFromWhatTheyChange) {
  const auto inside = make("UIView", rect(0, 0, 50, 50));
  add(view, inside);
  const auto fadeAll = objc::block<void()>([this] {
    send<void, "setAlpha:">(view.get(), 0.5);
    send<void, "setAlpha:">(parent.get(), 1.0);  // as it is
  });
  animate(0.3, fadeAll.get());
  EXPECT_EQ(touchedAt(20, 20), parent.get());
  EXPECT_THROW(Finger::current().reach(inside, {5, 5}), std::runtime_error);
  advance(0.299);
  EXPECT_EQ(touchedAt(20, 20), parent.get());
  advance(0.001);
  EXPECT_EQ(touchedAt(20, 20), inside.get());
}

TEST_F(Animations, LetTouchesThroughWhenTheyAreTold) {
  constexpr unsigned long allowUserInteraction = 2;
  animateWith(allowUserInteraction);
  EXPECT_EQ(touchedAt(20, 20), view.get());
  animateWith(0);  // nothing changes
  EXPECT_EQ(touchedAt(20, 20), view.get());
}

TEST_F(Animations, KeepTouchesFromTheContainerThatDissolves) {
  const auto to = make("UIView", rect(10, 10, 100, 100));
  dissolve(view, to);
  EXPECT_EQ(touchedAt(20, 20), window.get());
  EXPECT_EQ(touchedAt(200, 200), window.get());
  advance(0.3);
  EXPECT_EQ(touchedAt(20, 20), to.get());
}

}  // namespace
}  // namespace sim
