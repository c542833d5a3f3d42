// What a screen reader is told of views.
#include "simulator/uikit/views/ViewAccessibility.h"
#include "tests/uikit/UIKitTest.h"

namespace sim {
namespace {

class Accessibility : public UIKitTest {
 protected:
  static Object label(Object view) { return send<Object, "accessibilityLabel">(view); }
  static unsigned long traits(Object view) {
    return send<unsigned long, "accessibilityTraits">(view);
  }
  static bool isElement(Object view) { return send<bool, "isAccessibilityElement">(view); }
};

TEST_F(Accessibility, PlainViewsSayNothing) {
  const auto view = make("UIView");
  EXPECT_FALSE(isElement(view));
  EXPECT_FALSE(label(view));
  EXPECT_FALSE((send<Object, "accessibilityValue">(view.get())));
  EXPECT_EQ(traits(view), 0u);
}

TEST_F(Accessibility, ViewsSayWhatTheyAreGiven) {
  const auto view = make("UIView");
  const auto given = objc::adopt(send<Object, "mutableCopy">(string("Moon")));
  send<void, "setAccessibilityLabel:">(view.get(), given.get());
  send<void, "setString:">(given.get(), string("Sun"));  // a copy was taken
  send<void, "setAccessibilityValue:">(view.get(), string("full"));
  send<void, "setAccessibilityHint:">(view.get(), string("Rises"));
  send<void, "setAccessibilityTraits:">(view.get(), 4ul);
  send<void, "setIsAccessibilityElement:">(view.get(), true);
  EXPECT_EQ(text(label(view)), "Moon");
  EXPECT_EQ(text(send<Object, "accessibilityValue">(view.get())), "full");
  EXPECT_EQ(text(send<Object, "accessibilityHint">(view.get())), "Rises");
  EXPECT_EQ(traits(view), 4u);
  EXPECT_TRUE(isElement(view));
}

TEST_F(Accessibility, LabelsSayTheirTextUnlessToldOtherwise) {
  const auto view = make("UILabel");
  send<void, "setText:">(view.get(), string("00:12"));
  EXPECT_TRUE(isElement(view));
  EXPECT_EQ(text(label(view)), "00:12");
  EXPECT_EQ(traits(view), ViewAccessibility::staticText);
  send<void, "setAccessibilityLabel:">(view.get(), string("Twelve"));
  EXPECT_EQ(text(label(view)), "Twelve");
  send<void, "setAccessibilityLabel:">(view.get(), nullptr);
  EXPECT_EQ(text(label(view)), "00:12");
  send<void, "setIsAccessibilityElement:">(view.get(), false);
  EXPECT_FALSE(isElement(view));
}

TEST_F(Accessibility, ButtonsSayTheirTitleAndState) {
  const auto button = make("UIButton");
  EXPECT_TRUE(isElement(button));
  EXPECT_FALSE(label(button));
  send<void, "setTitle:forState:">(button.get(), string("Back"), 0ul);
  EXPECT_EQ(text(label(button)), "Back");
  EXPECT_EQ(traits(button), ViewAccessibility::button);
  send<void, "setSelected:">(button.get(), true);
  EXPECT_EQ(traits(button), ViewAccessibility::button | ViewAccessibility::selected);
  send<void, "setEnabled:">(button.get(), false);
  EXPECT_EQ(traits(button), ViewAccessibility::button | ViewAccessibility::selected |
                                ViewAccessibility::notEnabled);
  // What is given stands for all of it.
  send<void, "setAccessibilityTraits:">(button.get(), 0ul);
  EXPECT_EQ(traits(button), 0u);
}

TEST_F(Accessibility, PicturesAreNoStopsAndSayNothing) {
  const auto view = make("UIImageView");
  EXPECT_FALSE(isElement(view));
  EXPECT_FALSE(label(view));
  EXPECT_EQ(traits(view), ViewAccessibility::image);
}

TEST_F(Accessibility, SlidersSayHowFarTheyAre) {
  const auto slider = make("UISlider");
  send<void, "setMaximumValue:">(slider.get(), 4.0f);
  send<void, "setValue:">(slider.get(), 1.0f);
  EXPECT_TRUE(isElement(slider));
  EXPECT_EQ(text(send<Object, "accessibilityValue">(slider.get())), "25%");
  EXPECT_EQ(traits(slider), ViewAccessibility::adjustable);
  send<void, "setMaximumValue:">(slider.get(), 0.0f);  // no room at all
  EXPECT_EQ(text(send<Object, "accessibilityValue">(slider.get())), "0%");
}

}  // namespace
}  // namespace sim
