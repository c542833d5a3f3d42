#include "tests/autolayout/LayoutTest.h"

namespace sim {
namespace {

using namespace attribute;

// A fixed box of 200 by 100 at (40, 60), and a view of 50 by 20 next to or in it.
class Attributes : public LayoutTest {
 protected:
  void SetUp() override {
    LayoutTest::SetUp();
    window = shownWindow();
    box = make("UIView", rect(40, 60, 200, 100));
    add(window, box);
  }
  void TearDown() override {
    box = window = {};
    LayoutTest::TearDown();
  }
  // Where it stands when that attribute is the box's, plus 5.
  CGRect tied(long itsAttribute, long boxAttribute) {
    const auto view = child(window);
    size(view, 50, 20);
    const bool across = itsAttribute == top || itsAttribute == bottom || itsAttribute == centerY ||
                        itsAttribute == firstBaseline || itsAttribute == lastBaseline ||
                        itsAttribute == topMargin || itsAttribute == bottomMargin ||
                        itsAttribute == centerYWithinMargins;
    if (across)
      constrain({view, left, equal, window, left});
    else
      constrain({view, top, equal, window, top});
    constrain({view, itsAttribute, equal, box, boxAttribute, 1, 5});
    return laidOut(view);
  }

  Strong<Object> box;
};

TEST_F(Attributes, HorizontalEdges) {
  EXPECT_EQ(tied(left, left), rect(45, 0, 50, 20));
  EXPECT_EQ(tied(left, right), rect(245, 0, 50, 20));
  EXPECT_EQ(tied(right, left), rect(-5, 0, 50, 20));
  EXPECT_EQ(tied(right, right), rect(195, 0, 50, 20));
  EXPECT_EQ(tied(leading, trailing), rect(245, 0, 50, 20));
  EXPECT_EQ(tied(trailing, leading), rect(-5, 0, 50, 20));
}

TEST_F(Attributes, VerticalEdges) {
  EXPECT_EQ(tied(top, top), rect(0, 65, 50, 20));
  EXPECT_EQ(tied(top, bottom), rect(0, 165, 50, 20));
  EXPECT_EQ(tied(bottom, top), rect(0, 45, 50, 20));
  EXPECT_EQ(tied(bottom, bottom), rect(0, 145, 50, 20));
}

TEST_F(Attributes, Centres) {
  EXPECT_EQ(tied(centerX, centerX), rect(120, 0, 50, 20));
  EXPECT_EQ(tied(centerY, centerY), rect(0, 105, 50, 20));
  EXPECT_EQ(tied(centerX, right), rect(220, 0, 50, 20));
}

// 8 points each, unless they are set.
TEST_F(Attributes, Margins) {
  EXPECT_EQ(tied(left, leftMargin), rect(53, 0, 50, 20));
  EXPECT_EQ(tied(right, rightMargin), rect(187, 0, 50, 20));
  EXPECT_EQ(tied(leading, leadingMargin), rect(53, 0, 50, 20));
  EXPECT_EQ(tied(trailing, trailingMargin), rect(187, 0, 50, 20));
  EXPECT_EQ(tied(top, topMargin), rect(0, 73, 50, 20));
  EXPECT_EQ(tied(bottom, bottomMargin), rect(0, 137, 50, 20));
  send<void, "setLayoutMargins:">(box.get(), UIEdgeInsets{10, 20, 30, 40});
  EXPECT_EQ(tied(left, leftMargin), rect(65, 0, 50, 20));
  EXPECT_EQ(tied(centerX, centerXWithinMargins), rect(110, 0, 50, 20));
  EXPECT_EQ(tied(centerY, centerYWithinMargins), rect(0, 95, 50, 20));
}

// Views without text have theirs at the edges.
TEST_F(Attributes, BaselinesOfViewsWithoutText) {
  EXPECT_EQ(tied(top, firstBaseline), rect(0, 65, 50, 20));
  EXPECT_EQ(tied(top, lastBaseline), rect(0, 165, 50, 20));
  EXPECT_EQ(tied(lastBaseline, lastBaseline), rect(0, 145, 50, 20));
}

TEST_F(Attributes, LengthsWithFactors) {
  const auto view = child(box);
  place(view, 0, 0);
  constrain({view, attribute::width, equal, box, attribute::width, 0.5, -10});
  constrain({view, attribute::height, equal, view, attribute::width, 0.5, 0});
  EXPECT_EQ(laidOut(view), rect(0, 0, 90, 45));
}

TEST_F(Attributes, AFactorOfAPlace) {
  const auto view = child(box);
  size(view, 10, 10);
  constrain({view, centerX, equal, box, right, 0.25, 0});
  constrain({view, centerY, equal, box, centerY, 0.5, 0});
  EXPECT_EQ(laidOut(view), rect(45, 20, 10, 10));
}

TEST_F(Attributes, Inequalities) {
  const auto view = child(box);
  size(view, 10, 10);
  constrain({view, left, atLeast, box, left, 1, 30});
  constrain({view, right, atMost, box, right, 1, -30});
  constrain({view, centerX, equal, box, left, 1, 0, 750});
  constrain({view, top, equal, box, top});
  EXPECT_EQ(laidOut(view), rect(30, 0, 10, 10));
  constrain({view, centerX, equal, box, left, 1, 500, 751});
  EXPECT_EQ(laidOut(view), rect(160, 0, 10, 10));
}

// Text stands where its font's ascent is, whatever the size of the view.
TEST_F(Attributes, BaselinesOfText) {
  const auto large = label(window, "00:00"), small = label(window, "minutes");
  send<void, "setFont:">(large.get(), send<Object, "systemFontOfSize:">(cls("UIFont"), 40.0));
  send<void, "setFont:">(small.get(), send<Object, "systemFontOfSize:">(cls("UIFont"), 20.0));
  place(large, 0, 0);
  constrain({small, leading, equal, large, trailing});
  constrain({small, firstBaseline, equal, large, firstBaseline});
  const auto ascent = [](Object view) {
    return send<double, "ascender">(send<Object, "font">(view));
  };
  EXPECT_NEAR(laidOut(small).origin.y, ascent(large) - ascent(small), 0.5 / 3);
}

// Coordinates are each superview's own: the way between two views goes over the one around both.
TEST_F(Attributes, BetweenDifferentBranches) {
  const auto deep = make("UIView", rect(10, 10, 100, 50));
  add(box, deep);
  const auto inner = child(deep), outer = child(window);
  size(inner, 20, 20);
  size(outer, 20, 20);
  place(inner, 7, 9);
  constrain({outer, left, equal, inner, right});
  constrain({outer, top, equal, inner, bottom});
  EXPECT_EQ(laidOut(outer), rect(77, 99, 20, 20));
  send<void, "setBounds:">(deep.get(), rect(100, 0, 100, 50));  // scrolled
  EXPECT_EQ(laidOut(inner), rect(107, 9, 20, 20));
  EXPECT_EQ(frameOf(outer), rect(77, 99, 20, 20));
}

}  // namespace
}  // namespace sim
