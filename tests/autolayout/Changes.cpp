#include "tests/autolayout/LayoutTest.h"

namespace sim {
namespace {

using namespace attribute;

std::vector<id> layouts;  // who laid out, in order

struct LoggingView : objc::Implementation<LoggingView> {
  void layoutSubviews() {
    super<void, "layoutSubviews">();
    layouts.push_back(self());
  }
  static void registerClass() {
    objc::ClassBuilder<LoggingView>("LoggingView", "UIView")
        .method<"layoutSubviews", &LoggingView::layoutSubviews>()
        .finish();
  }
};

class Changes : public LayoutTest {
 protected:
  Changes() {
    if (cls("LoggingView") == nullptr) LoggingView::registerClass();
  }
  void SetUp() override {
    LayoutTest::SetUp();
    window = shownWindow();
    outer = make("LoggingView", rect(0, 0, 300, 100));
    add(window, outer);
    inner = child(outer, "LoggingView");
    gap = constrain({inner, left, equal, outer, left, 1, 10});
    constrain({inner, top, equal, outer, top});
    size(inner, 100, 50);
    leaf = child(inner);
    size(leaf, 10, 10);
    place(leaf, 0, 0);
    advance(0);
    layouts.clear();
  }
  void TearDown() override {
    leaf = inner = outer = window = {};
    LayoutTest::TearDown();
  }

  Strong<Object> outer, inner, leaf;
  Object gap;
};

TEST_F(Changes, AConstantCountsWhenTheRunLoopComesRound) {
  send<void, "setConstant:">(gap, 30.0);
  EXPECT_EQ(frameOf(inner), rect(10, 0, 100, 50));
  EXPECT_EQ(laidOut(inner), rect(30, 0, 100, 50));
}

TEST_F(Changes, OrWhenLayoutIsAskedFor) {
  send<void, "setConstant:">(gap, 30.0);
  send<void, "layoutIfNeeded">(leaf.get());
  EXPECT_EQ(frameOf(inner), rect(30, 0, 100, 50));
}

// It is the superview that puts a view where it belongs.
TEST_F(Changes, OnlySuperviewsOfWhatMovesLayOut) {
  send<void, "setConstant:">(gap, 30.0);
  advance(0);
  EXPECT_EQ(layouts, std::vector<id>{outer.get().get()});
}

TEST_F(Changes, WhatMovesNothingLaysNothingOut) {
  send<void, "setConstant:">(gap, 10.0);
  width(inner, 70, 100);
  advance(0);
  EXPECT_TRUE(layouts.empty());
}

TEST_F(Changes, ViewsNeedNoWindow) {
  send<void, "removeFromSuperview">(outer.get());
  send<void, "setConstant:">(gap, 30.0);
  advance(0);
  EXPECT_EQ(frameOf(inner), rect(10, 0, 100, 50));
  send<void, "layoutIfNeeded">(outer.get());
  EXPECT_EQ(frameOf(inner), rect(30, 0, 100, 50));
}

TEST_F(Changes, ConstraintsAreInForceWhileTheyAreActive) {
  const Object wide = constraint({.first = inner,
                                  .attribute = attribute::left,
                                  .relation = atLeast,
                                  .second = outer,
                                  .secondAttribute = left,
                                  .constant = 40,
                                  .priority = 1000});
  send<void, "setActive:">(gap, false);
  EXPECT_EQ(laidOut(inner), rect(0, 0, 100, 50));
  send<void, "setActive:">(wide, true);
  EXPECT_TRUE((send<bool, "isActive">(wide)));
  EXPECT_EQ(laidOut(inner), rect(40, 0, 100, 50));
  send<void, "deactivateConstraints:">(cls("NSLayoutConstraint"), array({wide}));
  send<void, "activateConstraints:">(cls("NSLayoutConstraint"), array({gap}));
  EXPECT_EQ(laidOut(inner), rect(10, 0, 100, 50));
}

TEST_F(Changes, TheNearestViewAroundBothOwnsAConstraint) {
  const auto count = [](Object view) {
    return send<unsigned long, "count">(send<Object, "constraints">(view));
  };
  EXPECT_EQ(count(outer), 2U);
  EXPECT_EQ(count(inner), 4U);
  EXPECT_EQ(count(leaf), 2U);
  EXPECT_EQ(count(window), 0U);
  const Object far = constrain({leaf, right, atMost, outer, right});
  EXPECT_EQ(count(outer), 3U);
  send<void, "addConstraint:">(window.get(), far);  // moves
  EXPECT_EQ(count(outer), 2U);
  EXPECT_EQ(count(window), 1U);
  send<void, "removeConstraint:">(outer.get(), far);  // another's
  EXPECT_TRUE((send<bool, "isActive">(far)));
  send<void, "removeConstraints:">(window.get(), array({far}));
  EXPECT_FALSE((send<bool, "isActive">(far)));
}

TEST_F(Changes, LeavingTheSuperviewEndsConstraintsWithTheOutside) {
  const auto kept = objc::retain(gap);
  const Object across = constrain({leaf, right, atMost, outer, right});
  const Object inside = constrain({leaf, right, atMost, inner, right});
  send<void, "removeFromSuperview">(inner.get());
  EXPECT_FALSE((send<bool, "isActive">(kept.get())));
  EXPECT_FALSE((send<bool, "isActive">(across)));
  EXPECT_TRUE((send<bool, "isActive">(inside)));
  EXPECT_EQ((send<unsigned long, "count">(send<Object, "constraints">(outer.get()))), 0U);
}

TEST_F(Changes, AViewThatIsGoneTakesItsConstraintsAlong) {
  auto other = content(outer, {10, 10});
  place(other, 0, 0);
  constrain({inner, left, atLeast, other, right, 1, 100, 999});
  send<void, "setActive:">(gap, false);
  EXPECT_EQ(laidOut(inner).origin.x, 110);
  send<void, "removeFromSuperview">(other.get());
  other = {};
  EXPECT_EQ(laidOut(inner).origin.x, 0);
}

TEST_F(Changes, HiddenViewsKeepTheirPlaces) {
  const auto next = content(outer, {10, 10});
  constrain({next, left, equal, inner, right});
  constrain({next, top, equal, outer, top});
  send<void, "setHidden:">(inner.get(), true);
  EXPECT_EQ(laidOut(next), rect(110, 0, 10, 10));
}

TEST_F(Changes, AFrameThatIsSetLastsUntilTheNextLayout) {
  send<void, "setFrame:">(inner.get(), rect(1, 2, 3, 4));
  EXPECT_EQ(frameOf(inner), rect(1, 2, 3, 4));
  send<void, "setNeedsLayout">(outer.get());
  EXPECT_EQ(laidOut(inner), rect(10, 0, 100, 50));
}

TEST_F(Changes, SizesFollowFixedViews) {
  constrain({inner, right, equal, outer, right, 1, 0, 1000});
  send<void, "setActive:">(gap, false);
  EXPECT_EQ(laidOut(inner), rect(200, 0, 100, 50));
  send<void, "setFrame:">(outer.get(), rect(0, 0, 200, 100));
  EXPECT_EQ(laidOut(inner), rect(100, 0, 100, 50));
}

TEST_F(Changes, PrioritiesDoNotBecomeRequired) {
  EXPECT_DEATH((send<void, "setPriority:">(gap, 999.0F)),
               "NSInternalInconsistencyException.*required to not on an installed constraint.*You "
               "passed priority 999 and the existing priority was 1000");
}

TEST_F(Changes, UpdateConstraintsComesBeforeLayout) {
  static Object changed;
  struct Updating : objc::Implementation<Updating> {
    void updateConstraints() {
      send<void, "setConstant:">(changed, 77.0);
      super<void, "updateConstraints">();
    }
  };
  objc::ClassBuilder<Updating>("UpdatingView", "UIView")
      .method<"updateConstraints", &Updating::updateConstraints>()
      .finish();
  changed = gap;
  const auto view = make("UpdatingView");
  add(outer, view);
  EXPECT_EQ(laidOut(inner).origin.x, 77);  // due in its first window
  send<void, "setConstant:">(gap, 10.0);
  EXPECT_EQ(laidOut(inner).origin.x, 10);
  send<void, "setNeedsUpdateConstraints">(view.get());
  EXPECT_TRUE((send<bool, "needsUpdateConstraints">(view.get())));
  EXPECT_EQ(laidOut(inner).origin.x, 77);
  EXPECT_FALSE((send<bool, "needsUpdateConstraints">(view.get())));
}

}  // namespace
}  // namespace sim
