#include "tests/autolayout/LayoutTest.h"

namespace sim {
namespace {

using namespace attribute;

constexpr long forceLeftToRight = 3, forceRightToLeft = 4;

class ReadingDirection : public LayoutTest {
 protected:
  void SetUp() override {
    LayoutTest::SetUp();
    locale_ = phone.setup.locale;
    window = shownWindow();
    box = make("UIView", rect(0, 0, 300, 100));
    add(window, box);
    icon = child(box);
    text = child(box);
    for (const auto& each : {icon, text}) {
      size(each, 20, 20);
      constrain({each, top, equal, box, top});
    }
    constrain({icon, leading, equal, box, leading, 1, 16});
    constrain({text, leading, atLeast, icon, trailing, 1, 6});
  }
  void TearDown() override {
    icon = text = box = window = {};
    phone.setup.locale = locale_;
    LayoutTest::TearDown();
  }
  void turn(Object view, long attribute) {
    send<void, "setSemanticContentAttribute:">(view, attribute);
  }

  Strong<Object> box, icon, text;

 private:
  std::string locale_;
};

TEST_F(ReadingDirection, LeftToRight) {
  EXPECT_EQ(laidOut(icon), rect(16, 0, 20, 20));
  EXPECT_EQ(frameOf(text), rect(42, 0, 20, 20));
}

TEST_F(ReadingDirection, RightToLeftByTheLanguage) {
  phone.setup.locale = "ar_SA";
  EXPECT_EQ(laidOut(icon), rect(264, 0, 20, 20));
  EXPECT_EQ(frameOf(text), rect(238, 0, 20, 20));
  EXPECT_EQ((send<long, "effectiveUserInterfaceLayoutDirection">(box.get())), 1);
}

// What the view around both says counts, and it may be changed at any time.
TEST_F(ReadingDirection, RightToLeftByTheViewAround) {
  advance(0);
  turn(box, forceRightToLeft);
  EXPECT_EQ(laidOut(icon), rect(264, 0, 20, 20));
  turn(icon, forceLeftToRight);
  EXPECT_EQ(laidOut(icon), rect(264, 0, 20, 20));
  turn(box, forceLeftToRight);
  EXPECT_EQ(laidOut(icon), rect(16, 0, 20, 20));
}

TEST_F(ReadingDirection, LeftAndRightStayWhatTheyAre) {
  turn(box, forceRightToLeft);
  const auto view = child(box);
  size(view, 20, 20);
  place(view, 16, 0);
  EXPECT_EQ(laidOut(view), rect(16, 0, 20, 20));
}

// A leading margin is on the right then.
TEST_F(ReadingDirection, MarginsAndCentres) {
  turn(box, forceRightToLeft);
  send<void, "setLayoutMargins:">(box.get(), UIEdgeInsets{0, 10, 0, 30});
  const auto a = child(box), b = child(box);
  for (const auto& each : {a, b}) {
    size(each, 20, 20);
    constrain({each, top, equal, box, top});
  }
  constrain({a, leading, equal, box, leadingMargin, 1, 5});
  constrain({b, leading, equal, box, centerX, 1, 5});
  EXPECT_EQ(laidOut(a), rect(245, 0, 20, 20));
  EXPECT_EQ(frameOf(b), rect(125, 0, 20, 20));
}

TEST_F(ReadingDirection, StacksRunTheOtherWay) {
  const auto row = make("UIStackView", rect(0, 50, 100, 20));
  send<void, "setSpacing:">(row.get(), 10.0);
  turn(row, forceRightToLeft);
  add(window, row);
  const auto first = content(window, {30, 20}), second = content(window, {30, 20});
  for (const auto& each : {first, second}) send<void, "addArrangedSubview:">(row.get(), each.get());
  EXPECT_EQ(laidOut(first), rect(70, 0, 30, 20));
  EXPECT_EQ(frameOf(second), rect(0, 0, 60, 20));
}

TEST_F(ReadingDirection, IsAskedForByAttribute) {
  const auto direction = [](long attribute) {
    return send<long, "userInterfaceLayoutDirectionForSemanticContentAttribute:">(cls("UIView"),
                                                                                  attribute);
  };
  EXPECT_EQ(direction(0), 0);
  EXPECT_EQ(direction(4), 1);
  phone.setup.locale = "he_IL";
  EXPECT_EQ(direction(0), 1);
  EXPECT_EQ(direction(1), 0);  // playback controls
  EXPECT_EQ(direction(3), 0);
}

}  // namespace
}  // namespace sim
