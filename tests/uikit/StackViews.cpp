#include "tests/uikit/UIKitTest.h"

namespace sim {
namespace {

class StackViews : public UIKitTest {
 protected:
  static Strong<Object> stack(CGRect frame, long distribution, long alignment, double spacing) {
    auto made = make("UIStackView", frame);
    send<void, "setDistribution:">(made.get(), distribution);
    send<void, "setAlignment:">(made.get(), alignment);
    send<void, "setSpacing:">(made.get(), spacing);
    return made;
  }
  static void arrange(Object stack, Object view) { send<void, "addArrangedSubview:">(stack, view); }
  // As constraints, which is what stacks go by.
  static Strong<Object> sized(CGSize size) {
    auto view = make("UIView");
    const auto constrain = [&](long attribute, double points) {
      const Object constraint =
          send<Object,
               "constraintWithItem:attribute:relatedBy:toItem:attribute:multiplier:constant:">(
              cls("NSLayoutConstraint"), view.get(), attribute, 0L, nullptr, 0L, 1.0, points);
      send<void, "setPriority:">(constraint, 999.0F);
      send<void, "setActive:">(constraint, true);
    };
    constrain(7, size.width);
    constrain(8, size.height);
    return view;
  }
  static Strong<Object> label(const char* text) {
    auto made = make("UILabel");
    send<void, "setText:">(made.get(), string(text));
    return made;
  }
  static unsigned long arrangedCount(Object stack) {
    return send<unsigned long, "count">(send<Object, "arrangedSubviews">(stack));
  }
};

TEST_F(StackViews, FillEquallyInTheMiddle) {
  const auto bar = stack(rect(0, 0, 300, 50), 1, 3, 0);
  const auto left = sized({10, 20}), right = sized({10, 30});
  arrange(bar, left);
  arrange(bar, right);
  send<void, "layoutIfNeeded">(bar.get());
  EXPECT_EQ(frameOf(left), rect(0, 15, 150, 20));
  EXPECT_EQ(frameOf(right), rect(150, 10, 150, 30));
}

TEST_F(StackViews, AHiddenViewLeavesNoGap) {
  const auto window = shownWindow();
  const auto column = stack(rect(0, 0, 100, 110), 1, 0, 10);
  send<void, "setAxis:">(column.get(), 1L);
  const auto a = make("UIView"), b = make("UIView"), c = make("UIView");
  for (const auto& each : {a, b, c}) arrange(column, each);
  add(window, column);
  advance(0);
  EXPECT_EQ(frameOf(b), rect(0, 40, 100, 30));
  send<void, "setHidden:">(a.get(), true);
  advance(0);
  EXPECT_EQ(frameOf(b), rect(0, 0, 100, 50));
  EXPECT_EQ(frameOf(c), rect(0, 60, 100, 50));
}

TEST_F(StackViews, FillGivesTheRestToTheLast) {
  const auto row = stack(rect(0, 0, 200, 40), 0, 1, 5);
  const auto a = label("Wide"), b = label("Wide");
  arrange(row, a);
  arrange(row, b);
  send<void, "layoutIfNeeded">(row.get());
  const CGSize wanted = send<CGSize, "intrinsicContentSize">(a.get());
  EXPECT_EQ(frameOf(a), (CGRect{{0, 0}, wanted}));
  EXPECT_EQ(frameOf(b), rect(wanted.width + 5, 0, 195 - wanted.width, wanted.height));
}

TEST_F(StackViews, WhatLeavesTheTreeIsArrangedNoMore) {
  const auto row = stack(rect(0, 0, 100, 20), 1, 0, 0);
  const auto view = make("UIView");
  arrange(row, view);
  send<void, "removeArrangedSubview:">(row.get(), view.get());
  EXPECT_EQ((send<Object, "superview">(view.get())), row.get());
  arrange(row, view);
  EXPECT_EQ(arrangedCount(row), 1U);
  send<void, "removeFromSuperview">(view.get());
  EXPECT_EQ(arrangedCount(row), 0U);
}

}  // namespace
}  // namespace sim
