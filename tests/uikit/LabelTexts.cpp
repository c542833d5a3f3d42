// How labels set their text into their bounds.
#include "simulator/uikit/views/LabelText.h"
#include "simulator/uikit/views/UILabel.h"
#include "tests/uikit/UIKitTest.h"

namespace sim {
namespace {

class LabelTexts : public UIKitTest {
 protected:
  void SetUp() override {
    UIKitTest::SetUp();
    label = make("UILabel", rect(0, 0, 100, 20.5));
  }
  void TearDown() override {
    phone.setup.locale = "en_US";
    label = nullptr;
    UIKitTest::TearDown();
  }
  LabelText set(const char* shown) const {
    send<void, "setText:">(label.get(), string(shown));
    return labelText(UILabel::of(label.get()));
  }

  Strong<Object> label;
};

TEST_F(LabelTexts, OneLineThatIsTooLongEndsEarly) {
  const auto text = set("Your music will stop in");
  ASSERT_EQ(text.lines.size(), 1U);
  EXPECT_EQ(text.lines[0].text, "Your music…");
  EXPECT_EQ(text.style.pointSize, 17);
}

TEST_F(LabelTexts, OrIsMadeSmallerWhereTheLabelAsksForIt) {
  send<void, "setAdjustsFontSizeToFitWidth:">(label.get(), true);
  send<void, "setMinimumScaleFactor:">(label.get(), 0.5);
  const auto text = set("Your music will stop");
  EXPECT_EQ(text.lines[0].text, "Your music will stop");
  EXPECT_LT(text.style.pointSize, 12);
  EXPECT_GE(text.style.pointSize, 8.5);
  EXPECT_LE(text.lines[0].width, 100);
}

TEST_F(LabelTexts, ButNotSmallerThanItAllows) {
  send<void, "setAdjustsFontSizeToFitWidth:">(label.get(), true);
  send<void, "setMinimumScaleFactor:">(label.get(), 0.9);
  const auto text = set("Your music will stop in");
  EXPECT_NEAR(text.style.pointSize, 15.3, 0.01);
  EXPECT_NE(text.lines[0].text, "Your music will stop in");
}

TEST_F(LabelTexts, StandsInTheMiddleOfTheHeight) {
  send<void, "setBounds:">(label.get(), rect(0, 0, 100, 100));
  const auto text = set("Hi");
  EXPECT_NEAR(text.baseline, 50 - text.style.lineHeight() / 2 + text.style.ascender(), 1e-9);
}

TEST_F(LabelTexts, OnlyAsManyLinesAsFit) {
  send<void, "setNumberOfLines:">(label.get(), 0L);
  send<void, "setBounds:">(label.get(), rect(0, 0, 100, 41));
  const auto text = set("You first need to create a shortcut");
  ASSERT_EQ(text.lines.size(), 2U);
  EXPECT_TRUE(text.lines[1].text.ends_with("…")) << text.lines[1].text;
}

TEST_F(LabelTexts, TextOfNoHeightFitsAnywhere) {
  send<void, "setFont:">(label.get(), send<Object, "systemFontOfSize:">(cls("UIFont"), 0.0));
  send<void, "setNumberOfLines:">(label.get(), 2L);
  EXPECT_EQ(set("one\ntwo\nthree").lines.size(), 2U);
}

TEST_F(LabelTexts, NaturallyBeginsWhereTheInterfaceDoes) {
  EXPECT_EQ(set("5").alignment, HorizontalAlignment::left);
  EXPECT_FALSE(set("5").isRightToLeft);
  phone.setup.locale = "ar_SA";
  EXPECT_EQ(set("5").alignment, HorizontalAlignment::right);
  EXPECT_TRUE(set("5").isRightToLeft);
  EXPECT_FALSE(set("Dozewell").isRightToLeft);
  constexpr long forceLeftToRight = 3, center = 1;
  send<void, "setSemanticContentAttribute:">(label.get(), forceLeftToRight);
  EXPECT_EQ(set("5").alignment, HorizontalAlignment::left);
  send<void, "setTextAlignment:">(label.get(), center);
  EXPECT_EQ(set("5").alignment, HorizontalAlignment::center);
}

TEST_F(LabelTexts, TextIsReadInItsOwnDirection) {
  EXPECT_TRUE(set("دقائق").isRightToLeft);
  EXPECT_EQ(set("دقائق").alignment, HorizontalAlignment::left);
}

}  // namespace
}  // namespace sim
