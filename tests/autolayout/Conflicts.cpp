#include <limits>

#include "tests/autolayout/LayoutTest.h"

namespace sim {
namespace {

using namespace attribute;

class Conflicts : public LayoutTest {
 protected:
  void SetUp() override {
    LayoutTest::SetUp();
    window = shownWindow();
    view = child(window);
    place(view, 0, 0);
    height(view, 10);
  }
  void TearDown() override {
    view = window = {};
    LayoutTest::TearDown();
  }
  static std::string breaking(const std::string& constraint) {
    return "log \"Unable to simultaneously satisfy constraints. Will attempt to recover by "
           "breaking constraint " +
           constraint + "\"";
  }

  Strong<Object> view;
};

using Lines = std::vector<std::string>;

TEST_F(Conflicts, BreakTheNewestOfRequiredConstraints) {
  width(view, 50);
  const Object second = width(view, 60);
  EXPECT_EQ(laidOut(view), rect(0, 0, 50, 10));
  EXPECT_EQ(journal(), Lines{breaking("<NSLayoutConstraint UIView.width == 60>")});
  // Once; again when it has been changed.
  send<void, "setNeedsLayout">(window.get());
  constrain({view, right, atMost, window, right});
  advance(1);
  EXPECT_EQ(journal().size(), 1U);
  send<void, "setConstant:">(second, 70.0);
  advance(1);
  EXPECT_EQ(journal().size(), 2U);
  EXPECT_EQ(frameOf(view), rect(0, 0, 50, 10));
}

// The gaps alone are wider than the stack.
TEST_F(Conflicts, StacksNameTheirOwn) {
  const auto stack = make("UIStackView", rect(0, 100, 15, 10));
  send<void, "setSpacing:">(stack.get(), 10.0);
  add(window, stack);
  for (int i = 0; i < 3; ++i) send<void, "addArrangedSubview:">(stack.get(), make("UIView").get());
  advance(0);
  EXPECT_EQ(journal(), Lines{breaking("<NSLayoutConstraint 'UISV-spacing' of UIStackView>")});
  send<void, "setFrame:">(stack.get(), rect(0, 100, 12, 10));
  advance(0);
  EXPECT_EQ(journal().size(), 1U);
}

TEST_F(Conflicts, EndWithTheirReason) {
  const Object first = width(view, 50);
  width(view, 60);
  advance(0);
  send<void, "setActive:">(first, false);
  EXPECT_EQ(laidOut(view), rect(0, 0, 60, 10));
}

TEST_F(Conflicts, AreNamedInFull) {
  const Object gap = constrain({view, left, atLeast, window, right, 0.5, 6});
  send<void, "setIdentifier:">(gap, string("gap"));
  width(view, 10);
  advance(0);
  EXPECT_EQ(journal(), Lines{breaking("<NSLayoutConstraint 'gap' UIView.left >= UIWindow.right * "
                                      "0.5 + 6>")});
  const Object weak = constraint({view, centerX, atMost, window, trailing, 1, -3, 250});
  EXPECT_EQ(text(send<Object, "description">(weak)),
            "<NSLayoutConstraint UIView.centerX <= UIWindow.trailing - 3 @ 250>");
}

TEST_F(Conflicts, NoViewBecomesNegative) {
  constrain({view, left, equal, window, left, 1, 0});
  const Object right_ = constrain({view, right, equal, window, left, 1, -20});
  EXPECT_EQ(laidOut(view).size.width, 0);
  EXPECT_EQ(journal().size(), 1U);
  send<void, "setActive:">(right_, false);
}

TEST_F(Conflicts, WishesNeverBreak) {
  width(view, 50);
  width(view, 60, 999.5);
  width(view, 70, 999);
  EXPECT_EQ(laidOut(view), rect(0, 0, 50, 10));
  EXPECT_TRUE(journal().empty());
}

// What nothing determines: no size, in the corner.
TEST_F(Conflicts, AmbiguityIsSettledAlikeEveryTime) {
  const auto lost = child(window), wide = child(window);
  constrain({wide, right, equal, window, right});
  constrain({wide, attribute::width, atLeast, nullptr, none, 1, 30});
  EXPECT_EQ(laidOut(lost), rect(0, 0, 0, 0));
  EXPECT_EQ(frameOf(wide), rect(360, 0, 30, 0));
}

TEST_F(Conflicts, APlaceNeedsAnotherToBeComparedWith) {
  EXPECT_DEATH(constraint({view, left, equal, nullptr, none, 1, 10}),
               "NSInvalidArgumentException.*Location attributes must be specified in pairs");
  EXPECT_DEATH(constraint({view, left, equal, window, left, 0, 10}),
               "NSInvalidArgumentException.*Location attributes must be specified in pairs");
}

TEST_F(Conflicts, NumbersMustBeFinite) {
  const Object wide = width(view, 10);
  constexpr double none_ = std::numeric_limits<double>::quiet_NaN();
  EXPECT_DEATH((send<void, "setConstant:">(wide, none_)),
               "NSInvalidArgumentException.*Constant is not finite!  That's illegal.");
  EXPECT_DEATH(constraint({view, attribute::width, equal, window, attribute::width, none_, 0}),
               "NSInvalidArgumentException.*Multiplier is not finite!  That's illegal.");
}

TEST_F(Conflicts, NoPriorityIsNoConstraint) {
  width(view, 50, 0);
  EXPECT_EQ(laidOut(view), rect(0, 0, 0, 10));
}

TEST_F(Conflicts, ItemsMustBeOfOneTree) {
  const auto stranger = make("UIView");
  EXPECT_DEATH(constrain({view, left, equal, stranger, left}),
               "NSGenericException.*they have no common ancestor");
}

}  // namespace
}  // namespace sim
