#include "simulator/uikit/controls/UISlider.h"
#include "simulator/uikit/views/UIView.h"
#include "tests/uikit/UIKitTest.h"

namespace sim {
namespace {

using Slider = UIKitTest;

float valueOf(Object slider) {
  return send<float, "value">(slider);
}

TEST_F(Slider, HoldsItsValueToItsLimits) {
  const auto slider = make("UISlider");
  EXPECT_EQ(valueOf(slider), 0);
  send<void, "setValue:">(slider.get(), 2.0F);
  EXPECT_EQ(valueOf(slider), 1);
  send<void, "setValue:animated:">(slider.get(), -1.0F, true);
  EXPECT_EQ(valueOf(slider), 0);
  send<void, "setMaximumValue:">(slider.get(), 10.0F);
  send<void, "setValue:">(slider.get(), 2.0F);
  EXPECT_EQ(valueOf(slider), 2);
}

TEST_F(Slider, FillsItsLineByItsValue) {
  const auto slider = make("UISlider", rect(0, 0, 200, 30));
  send<void, "setMinimumValue:">(slider.get(), -1.0F);
  send<void, "setValue:">(slider.get(), 0.0F);
  send<void, "layoutIfNeeded">(slider.get());
  const auto lines = send<Object, "subviews">(slider.get());
  EXPECT_EQ(frameOf(send<Object, "objectAtIndex:">(lines, 0UL)), rect(0, 12, 200, 6));
  EXPECT_EQ(frameOf(send<Object, "objectAtIndex:">(lines, 1UL)), rect(0, 12, 100, 6));
}

TEST_F(Slider, TellsOnlyOfWhatAHandDoes) {
  const auto slider = make("UISlider"), shown = make("UIView");
  constexpr unsigned long valueChanged = 1 << 12;
  send<void, "addTarget:action:forControlEvents:">(
      slider.get(), shown.get(), sel_registerName("setNeedsLayout"), valueChanged);
  send<void, "layoutIfNeeded">(shown.get());
  send<void, "setValue:">(slider.get(), 0.5F);
  EXPECT_FALSE(UIView::of(shown.get()).needsLayout);
  UISlider::of(slider.get()).turnBy(5);
  EXPECT_EQ(valueOf(slider), 0.25F);
  EXPECT_TRUE(UIView::of(shown.get()).needsLayout);
}

}  // namespace
}  // namespace sim
