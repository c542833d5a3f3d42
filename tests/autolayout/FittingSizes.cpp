#include "tests/autolayout/LayoutTest.h"

namespace sim {
namespace {

using namespace attribute;

class FittingSizes : public LayoutTest {
 protected:
  // A label with 10 points around it.
  void SetUp() override {
    LayoutTest::SetUp();
    view = make("UIView", rect(0, 0, 500, 500));
    text = label(view, "some words that fit into one line when there is room");
    constrain({text, left, equal, view, left, 1, 10});
    constrain({text, top, equal, view, top, 1, 10});
    constrain({view, right, equal, text, right, 1, 10});
    constrain({view, bottom, equal, text, bottom, 1, 10});
  }
  void TearDown() override {
    text = view = {};
    LayoutTest::TearDown();
  }
  CGSize fitting(CGSize target) {
    return send<CGSize, "systemLayoutSizeFittingSize:">(view.get(), target);
  }

  Strong<Object> view, text;
};

TEST_F(FittingSizes, AreThoseOfTheContentsWithWhatIsAround) {
  const CGSize wanted = send<CGSize, "intrinsicContentSize">(text.get());
  const CGSize found = fitting({});
  EXPECT_NEAR(found.width, wanted.width + 20, 1e-9);
  EXPECT_NEAR(found.height, wanted.height + 20, 1e-9);
  EXPECT_EQ(frameOf(view), rect(0, 0, 500, 500));  // only asked
}

TEST_F(FittingSizes, FollowTheTargetAsFarAsItsPriorityReaches) {
  send<void, "setNumberOfLines:">(text.get(), 0L);
  const CGSize found =
      send<CGSize,
           "systemLayoutSizeFittingSize:withHorizontalFittingPriority:verticalFittingPriority:">(
          view.get(), CGSize{120, 0}, 1000.0F, 50.0F);
  EXPECT_EQ(found.width, 120);
  EXPECT_NEAR(found.height,
              (send<CGSize, "sizeThatFits:">(text.get(), CGSize{100, 1000})).height + 20, 1e-9);
}

TEST_F(FittingSizes, OfTextByItself) {
  EXPECT_EQ((send<CGSize, "systemLayoutSizeFittingSize:">(text.get(), CGSize())),
            (send<CGSize, "intrinsicContentSize">(text.get())));
}

TEST_F(FittingSizes, OfAStack) {
  const auto stack = make("UIStackView");
  send<void, "setSpacing:">(stack.get(), 5.0);
  const auto a = content(view, {30, 20}), b = content(view, {40, 10});
  for (const auto& each : {a, b}) send<void, "addArrangedSubview:">(stack.get(), each.get());
  EXPECT_EQ((send<CGSize, "systemLayoutSizeFittingSize:">(stack.get(), CGSize())),
            (CGSize{75, 20}));
  // Unless its views are stretched, it is no wider than they are, whatever the target.
  send<void, "setAlignment:">(stack.get(), 3L);
  EXPECT_EQ((send<CGSize, "systemLayoutSizeFittingSize:">(stack.get(), CGSize{0, 100})),
            (CGSize{75, 20}));
}

}  // namespace
}  // namespace sim
