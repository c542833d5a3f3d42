#include "tests/uikit/UIKitTest.h"

namespace sim {
namespace {

class Animations : public UIKitTest {
 protected:
  Animations()
      : changes_(objc::block<void()>([this] { changedAt = seconds(phone.clock.uptime()); })),
        ended_(objc::block<void(bool)>([this](bool finished) {
          EXPECT_TRUE(finished);
          endedAt = seconds(phone.clock.uptime());
        })) {}
  void SetUp() override {
    UIKitTest::SetUp();
    start = seconds(phone.clock.uptime());
  }
  objc::Block<void()> changes() const { return changes_.get(); }
  objc::Block<void(bool)> ended() const { return ended_.get(); }

  double start = 0;
  double changedAt = -1;
  double endedAt = -1;

 private:
  Strong<objc::Block<void()>> changes_;
  Strong<objc::Block<void(bool)>> ended_;
};

TEST_F(Animations, ChangeAtOnceAndEndLater) {
  send<void, "animateWithDuration:animations:completion:">(cls("UIView"), 0.3, changes(), ended());
  EXPECT_DOUBLE_EQ(changedAt, start);
  advance(0.29);
  EXPECT_EQ(endedAt, -1);
  advance(0.02);
  EXPECT_DOUBLE_EQ(endedAt, start + 0.3);
}

TEST_F(Animations, WaitForTheirDelay) {
  send<void, "animateWithDuration:delay:options:animations:completion:">(cls("UIView"), 0.3, 0.5,
                                                                         0UL, changes(), ended());
  EXPECT_DOUBLE_EQ(changedAt, start);
  advance(1);
  EXPECT_DOUBLE_EQ(endedAt, start + 0.8);
}

TEST_F(Animations, WithoutDurationEndAtOnce) {
  send<void, "animateWithDuration:animations:completion:">(cls("UIView"), 0.0, changes(), ended());
  EXPECT_DOUBLE_EQ(endedAt, start);
}

TEST_F(Animations, NobodyNeedsToHearOfTheEnd) {
  send<void, "animateWithDuration:animations:">(cls("UIView"), 0.4, changes());
  send<void,
       "animateWithDuration:delay:usingSpringWithDamping:initialSpringVelocity:options:"
       "animations:completion:">(cls("UIView"), 0.3, 0.0, 0.3, 5.0, 2UL, changes(),
                                 objc::Block<void(bool)>(nullptr));
  EXPECT_DOUBLE_EQ(changedAt, start);
  advance(1);
}

TEST_F(Animations, ATransitionExchangesTheViews) {
  const auto parent = make("UIView"), from = make("UIView"), to = make("UIView");
  add(parent, from);
  send<void, "transitionFromView:toView:duration:options:completion:">(
      cls("UIView"), from.get(), to.get(), 0.3, 0x500000UL, ended());
  EXPECT_FALSE((send<Object, "superview">(from.get())));
  EXPECT_EQ((send<Object, "superview">(to.get())), parent.get());
  EXPECT_FALSE((send<bool, "isHidden">(from.get())));
  advance(0.3);
  EXPECT_DOUBLE_EQ(endedAt, start + 0.3);
}

TEST_F(Animations, OrATransitionOnlyHidesAndShows) {
  const auto parent = make("UIView"), from = make("UIView"), to = make("UIView");
  add(parent, from);
  add(parent, to);
  send<void, "setHidden:">(to.get(), true);
  send<void, "transitionFromView:toView:duration:options:completion:">(
      cls("UIView"), from.get(), to.get(), 0.3, 0x500100UL, ended());
  EXPECT_EQ((send<Object, "superview">(from.get())), parent.get());
  EXPECT_TRUE((send<bool, "isHidden">(from.get())));
  EXPECT_FALSE((send<bool, "isHidden">(to.get())));
}

TEST_F(Animations, CanBeSwitchedOffForAWhile) {
  const auto body = objc::block<void()>([this] {
    send<void, "transitionWithView:duration:options:animations:completion:">(
        cls("UIView"), nullptr, 0.2, 0x500000UL, changes(), ended());
  });
  send<void, "performWithoutAnimation:">(cls("UIView"), body.get());
  EXPECT_DOUBLE_EQ(endedAt, start);
  EXPECT_TRUE((send<bool, "areAnimationsEnabled">(cls("UIView"))));
}

}  // namespace
}  // namespace sim
