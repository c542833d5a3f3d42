#include "tests/autolayout/LayoutTest.h"

namespace sim {
namespace {

enum Distribution : long { fill, fillEqually, fillProportionally, equalSpacing, equalCentering };
enum Alignment : long { alignFill, alignLeading, alignFirstBaseline, alignCenter, alignTrailing };

// Three views of 30, 60 and 10 points in a row of 200, 10 apart.
class Stacks : public LayoutTest {
 protected:
  void SetUp() override {
    LayoutTest::SetUp();
    window = shownWindow();
    stack = make("UIStackView", rect(0, 0, 200, 50));
    send<void, "setSpacing:">(stack.get(), 10.0);
    add(window, stack);
    a = content(window, {30, 20});
    b = content(window, {60, 40});
    c = content(window, {10, 10});
    for (const auto& each : {a, b, c}) send<void, "addArrangedSubview:">(stack.get(), each.get());
  }
  void TearDown() override {
    a = b = c = stack = window = {};
    LayoutTest::TearDown();
  }
  void distribute(long distribution) { send<void, "setDistribution:">(stack.get(), distribution); }
  void align(long alignment) { send<void, "setAlignment:">(stack.get(), alignment); }
  // Where they begin and how long they are, along the stack.
  void expect(std::vector<std::pair<double, double>> spans, bool isVertical = false) {
    advance(0);
    const Object views[] = {a, b, c};
    for (std::size_t i = 0; i < spans.size(); ++i) {
      const auto [origin, size] = frameOf(views[i]);
      EXPECT_NEAR(isVertical ? origin.y : origin.x, spans[i].first, 1e-9) << "view " << i;
      EXPECT_NEAR(isVertical ? size.height : size.width, spans[i].second, 1e-9) << "view " << i;
    }
    EXPECT_EQ(journal(), std::vector<std::string>());
  }

  Strong<Object> stack, a, b, c;
};

TEST_F(Stacks, Fill) {
  expect({{0, 30}, {40, 60}, {110, 90}});
}

TEST_F(Stacks, FillByPriorities) {
  send<void, "setContentHuggingPriority:forAxis:">(b.get(), 249.0F, 0L);
  expect({{0, 30}, {40, 140}, {190, 10}});
}

TEST_F(Stacks, FillTooShort) {
  send<void, "setFrame:">(stack.get(), rect(0, 0, 80, 50));
  send<void, "setContentCompressionResistancePriority:forAxis:">(b.get(), 749.0F, 0L);
  expect({{0, 30}, {40, 20}, {70, 10}});
}

TEST_F(Stacks, FillEqually) {
  distribute(fillEqually);
  expect({{0, 60}, {70, 60}, {140, 60}});
}

TEST_F(Stacks, FillProportionally) {
  distribute(fillProportionally);
  expect({{0, 54}, {64, 108}, {182, 18}});
}

TEST_F(Stacks, EqualSpacing) {
  distribute(equalSpacing);
  expect({{0, 30}, {80, 60}, {190, 10}});
  send<void, "setFrame:">(stack.get(), rect(0, 0, 90, 50));  // spacing is the least
  send<void, "setContentCompressionResistancePriority:forAxis:">(b.get(), 749.0F, 0L);
  expect({{0, 30}, {40, 30}, {80, 10}});
}

TEST_F(Stacks, EqualCentring) {
  distribute(equalCentering);
  expect({{0, 30}, {75, 60}, {190, 10}});
}

TEST_F(Stacks, Alignment) {
  advance(0);
  EXPECT_EQ(frameOf(a), rect(0, 0, 30, 50));
  align(alignLeading);
  EXPECT_EQ(laidOut(a), rect(0, 0, 30, 20));
  align(alignCenter);
  EXPECT_EQ(laidOut(a), rect(0, 15, 30, 20));
  align(alignTrailing);
  EXPECT_EQ(laidOut(a), rect(0, 30, 30, 20));
  align(alignFill);
  EXPECT_EQ(laidOut(a), rect(0, 0, 30, 50));
}

TEST_F(Stacks, BaselineAlignment) {
  const auto row = make("UIStackView", rect(0, 100, 300, 60));
  add(window, row);
  send<void, "setAlignment:">(row.get(), alignFirstBaseline);
  const auto large = label(window, "5"), small = label(window, "min");
  send<void, "setFont:">(large.get(), send<Object, "systemFontOfSize:">(cls("UIFont"), 40.0));
  for (const auto& each : {large, small}) send<void, "addArrangedSubview:">(row.get(), each.get());
  advance(0);
  const auto baseline = [](Object view) {
    return frameOf(view).origin.y + send<double, "ascender">(send<Object, "font">(view));
  };
  EXPECT_NEAR(baseline(large), baseline(small), 0.34);
  EXPECT_GT(frameOf(small).origin.y, frameOf(large).origin.y + 10);
}

TEST_F(Stacks, Columns) {
  send<void, "setAxis:">(stack.get(), 1L);
  send<void, "setFrame:">(stack.get(), rect(0, 0, 80, 200));
  expect({{0, 20}, {30, 40}, {80, 120}}, true);
  EXPECT_EQ(frameOf(a).size.width, 80);
  distribute(fillEqually);
  expect({{0, 60}, {70, 60}, {140, 60}}, true);
}

TEST_F(Stacks, HiddenViewsTakeNoRoom) {
  distribute(fillEqually);
  send<void, "setHidden:">(b.get(), true);
  expect({{0, 95}, {0, 0}, {105, 95}});
  send<void, "setHidden:">(b.get(), false);
  expect({{0, 60}, {70, 60}, {140, 60}});
  for (const auto& each : {a, b, c}) send<void, "setHidden:">(each.get(), true);
  expect({{0, 0}, {0, 0}, {0, 0}});
}

// As far as nothing else says how large it is.
TEST_F(Stacks, AreAsLargeAsTheirViews) {
  const auto row = child(window, "UIStackView");
  send<void, "setSpacing:">(row.get(), 10.0);
  send<void, "setAlignment:">(row.get(), alignCenter);
  place(row, 5, 100);
  for (const auto& each : {a, b, c}) send<void, "addArrangedSubview:">(row.get(), each.get());
  EXPECT_EQ(laidOut(row), rect(5, 100, 120, 40));
  EXPECT_EQ(frameOf(c), rect(110, 15, 10, 10));
  send<void, "setHidden:">(b.get(), true);
  EXPECT_EQ(laidOut(row), rect(5, 100, 50, 20));
}

TEST_F(Stacks, StandInStacks) {
  const auto column = child(window, "UIStackView"), row = child(window, "UIStackView");
  send<void, "setAxis:">(column.get(), 1L);
  place(column, 0, 100);
  for (const auto& each : {a, b}) send<void, "addArrangedSubview:">(row.get(), each.get());
  for (const auto& each : {row, c}) send<void, "addArrangedSubview:">(column.get(), each.get());
  EXPECT_EQ(laidOut(column), rect(0, 100, 90, 50));
  EXPECT_EQ(frameOf(row), rect(0, 0, 90, 40));
  EXPECT_EQ(frameOf(c), rect(0, 40, 90, 10));
}

TEST_F(Stacks, ChangesCountWhenTheRunLoopComesRound) {
  advance(0);
  send<void, "setSpacing:">(stack.get(), 20.0);
  expect({{0, 30}, {50, 60}, {130, 70}});
  send<void, "removeArrangedSubview:">(stack.get(), a.get());
  send<void, "insertArrangedSubview:atIndex:">(stack.get(), c.get(), 0UL);
  advance(0);
  EXPECT_EQ(frameOf(c), rect(0, 0, 10, 50));
  EXPECT_EQ(frameOf(b), rect(30, 0, 170, 50));
}

TEST_F(Stacks, SpacingMayDifferAfterAView) {
  send<void, "setCustomSpacing:afterView:">(stack.get(), 25.0, b.get());
  EXPECT_EQ((send<double, "customSpacingAfterView:">(stack.get(), b.get())), 25);
  EXPECT_EQ((send<double, "customSpacingAfterView:">(stack.get(), a.get())), 10);
  expect({{0, 30}, {40, 60}, {125, 75}});
  send<void, "setHidden:">(b.get(), true);
  expect({{0, 30}, {0, 0}, {40, 160}});
}

TEST_F(Stacks, MayKeepToTheirMargins) {
  send<void, "setLayoutMargins:">(stack.get(), UIEdgeInsets{1, 20, 3, 40});
  send<void, "setLayoutMarginsRelativeArrangement:">(stack.get(), true);
  expect({{20, 30}, {60, 60}, {130, 30}});
  EXPECT_EQ(frameOf(a), rect(20, 1, 30, 46));
  align(alignCenter);
  EXPECT_EQ(laidOut(a), rect(20, 14, 30, 20));
  distribute(fillProportionally);
  expect({{20, 36}, {66, 72}, {148, 12}});
}

TEST_F(Stacks, TakeTranslationFromWhatTheyArrange) {
  const auto view = make("UIView");
  send<void, "addArrangedSubview:">(stack.get(), view.get());
  EXPECT_FALSE((send<bool, "translatesAutoresizingMaskIntoConstraints">(view.get())));
}

}  // namespace
}  // namespace sim
