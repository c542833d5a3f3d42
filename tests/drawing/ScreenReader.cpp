// What of the views a screen reader finds in the scene.
#include "tests/drawing/DrawingTest.h"

namespace sim {
namespace {

using Role = scene::Accessibility::Role;

// With a button that something listens to, in a window.
class ScreenReader : public DrawingTest {
 protected:
  void SetUp() override {
    DrawingTest::SetUp();
    window = shownWindow();
    button = make("UIButton", rect(0, 0, 100, 100));
    send<void, "addTarget:action:forControlEvents:">(button.get(), window.get(),
                                                     objc::selector<"setNeedsLayout">(), 64ul);
    send<void, "setAccessibilityLabel:">(button.get(), string("Sleep timer"));
    add(window, button);
  }
  void TearDown() override {
    button = nullptr;
    window = nullptr;
    DrawingTest::TearDown();
  }

  Strong<Object> window, button;
};

TEST_F(ScreenReader, TextThatIsReadAsItStandsHasNoRole) {
  const auto label = make("UILabel", rect(0, 0, 100, 20));
  send<void, "setText:">(label.get(), string("00:12"));
  EXPECT_FALSE(drawn(label).attributes.accessibility);
}

TEST_F(ScreenReader, TextMayBeToldInOtherWords) {
  const auto label = make("UILabel", rect(0, 0, 100, 20));
  send<void, "setText:">(label.get(), string("00:12"));
  send<void, "setAccessibilityValue:">(label.get(), string("12 seconds"));
  EXPECT_EQ(drawn(label).attributes.accessibility,
            (scene::Accessibility{Role::text, "00:12", "12 seconds"}));
  send<void, "setAccessibilityLabel:">(label.get(), string("Clock"));
  EXPECT_EQ(drawn(label).attributes.accessibility,
            (scene::Accessibility{Role::text, "Clock", "12 seconds"}));
}

TEST_F(ScreenReader, TextMayBePassedOver) {
  const auto label = make("UILabel", rect(0, 0, 100, 20));
  send<void, "setText:">(label.get(), string("minutes"));
  send<void, "setIsAccessibilityElement:">(label.get(), false);
  EXPECT_EQ(drawn(label).attributes.accessibility, (scene::Accessibility{Role::unspoken, "", ""}));
}

TEST_F(ScreenReader, ControlsTellTheirWordsAndTraits) {
  send<void, "setAccessibilityValue:">(button.get(), string("12 minutes left"));
  EXPECT_EQ(drawn(button).attributes.accessibility,
            (scene::Accessibility{Role::button, "Sleep timer", "12 minutes left"}));
  send<void, "setSelected:">(button.get(), true);
  EXPECT_TRUE(drawn(button).attributes.accessibility->isSelected);
  // Traits count, also where they say something else than the state.
  send<void, "setAccessibilityTraits:">(button.get(), 1ul << 8);
  EXPECT_FALSE(drawn(button).attributes.accessibility->isSelected);
  EXPECT_FALSE(drawn(button).attributes.accessibility->isEnabled);
}

TEST_F(ScreenReader, HiddenControlsAreNotFound) {
  EXPECT_TRUE(drawn(button).attributes.accessibility);
  send<void, "setHidden:">(button.get(), true);
  EXPECT_FALSE(drawn(button).attributes.accessibility);
  send<void, "setHidden:">(button.get(), false);
  EXPECT_TRUE(drawn(button).attributes.accessibility);
  send<void, "setAlpha:">(button.get(), 0.0);
  EXPECT_FALSE(drawn(button).attributes.accessibility);
}

}  // namespace
}  // namespace sim
