#include "tests/uikit/UIKitTest.h"

namespace sim {
namespace {

class Appearance : public UIKitTest {};

Object color(double red, double green, double blue, double alpha) {
  return send<Object, "colorWithRed:green:blue:alpha:">(cls("UIColor"), red, green, blue, alpha);
}

TEST_F(Appearance, ColoursAreTheirComponents) {
  const Object purple = color(0.415, 0.365, 0.861, 1);
  EXPECT_TRUE((send<bool, "isEqual:">(purple, color(0.415, 0.365, 0.861, 1))));
  EXPECT_FALSE((send<bool, "isEqual:">(purple, color(0.415, 0.365, 0.861, 0.5))));
  EXPECT_EQ(description(purple), "UIExtendedSRGBColorSpace 0.415 0.365 0.861 1");
  const Object black = send<Object, "blackColor">(cls("UIColor"));
  EXPECT_EQ(description(send<Object, "colorWithAlphaComponent:">(black, 0.2)),
            "UIExtendedGrayColorSpace 0 0.2");
  EXPECT_TRUE((send<bool, "isEqual:">(send<Object, "CGColor">(purple),
                                      send<Object, "CGColor">(color(0.415, 0.365, 0.861, 1)))));
}

TEST_F(Appearance, FontsHaveSizeAndWeight) {
  const Object font = send<Object, "systemFontOfSize:weight:">(cls("UIFont"), 17.0, 0.3);
  EXPECT_EQ(text(send<Object, "fontName">(font)), ".SFUI-Semibold");
  EXPECT_EQ((send<double, "pointSize">(send<Object, "fontWithSize:">(font, 20.0))), 20);
  EXPECT_FALSE(
      (send<bool, "isEqual:">(font, send<Object, "systemFontOfSize:">(cls("UIFont"), 17.0))));
}

TEST_F(Appearance, LabelsMeasureTheirText) {
  const auto label = make("UILabel");
  const auto size = [&] { return send<CGSize, "intrinsicContentSize">(label.get()); };
  EXPECT_EQ(size(), CGSize());
  send<void, "setText:">(label.get(), string("SONGS"));
  const CGSize five = size();
  EXPECT_DOUBLE_EQ(five.height, 61.0 / 3);  // whole pixels
  send<void, "setText:">(label.get(), string("SONG"));
  EXPECT_LT(size().width, five.width);
  send<void, "setFont:">(label.get(), send<Object, "systemFontOfSize:">(cls("UIFont"), 34.0));
  EXPECT_DOUBLE_EQ(size().height, 122.0 / 3);
  send<void, "sizeToFit">(label.get());
  EXPECT_EQ(frameOf(label).size, size());
}

TEST_F(Appearance, LabelsBreakLinesWhereTheyMay) {
  const auto label = make("UILabel");
  send<void, "setText:">(label.get(), string("You first need to create a shortcut"));
  const CGSize room = {100, 1000};
  EXPECT_DOUBLE_EQ((send<CGSize, "sizeThatFits:">(label.get(), room).height), 61.0 / 3);
  send<void, "setNumberOfLines:">(label.get(), 0L);
  const CGSize broken = send<CGSize, "sizeThatFits:">(label.get(), room);
  EXPECT_GT(broken.height, 40);
  EXPECT_LE(broken.width, 100);
  send<void, "setNumberOfLines:">(label.get(), 2L);
  EXPECT_DOUBLE_EQ((send<CGSize, "sizeThatFits:">(label.get(), room).height), 122.0 / 3);
}

TEST_F(Appearance, ViewsPassTheirLooksToTheLayer) {
  const auto view = make("UIView");
  const Object layer = send<Object, "layer">(view.get());
  send<void, "setAlpha:">(view.get(), 0.85);
  EXPECT_EQ((send<double, "alpha">(view.get())), 0.85);
  EXPECT_FLOAT_EQ((send<float, "opacity">(layer)), 0.85f);
  send<void, "setBackgroundColor:">(view.get(), color(1, 0, 0, 1));
  EXPECT_EQ(description(send<Object, "backgroundColor">(layer)),
            "UIExtendedSRGBColorSpace 1 0 0 1");
  send<void, "setClipsToBounds:">(view.get(), true);
  EXPECT_TRUE((send<bool, "masksToBounds">(layer)));
}

}  // namespace
}  // namespace sim
