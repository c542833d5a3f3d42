// How much room characters take.
#include <gtest/gtest.h>

#include "simulator/coretext/FontStyle.h"

namespace sim {
namespace {

TEST(FontStyles, LettersAreAsWideAsInTheFace) {
  // The face's own figures for H and i, and the room between small letters.
  const FontStyle style{17, 0, false};
  EXPECT_NEAR(textWidth("Hi", style), (0.74006 + 0.23722) * 17 + 2 * style.tracking(), 0.02);
  EXPECT_GT(textWidth("W", style), textWidth("l", style));
}

TEST(FontStyles, PairsAreKerned) {
  const FontStyle style{28, 0, false};
  EXPECT_LT(textWidth("To", style), textWidth("T", style) + textWidth("o", style) - 1);
  EXPECT_LT(textWidth("AV", style), textWidth("A", style) + textWidth("V", style) - 1);
}

TEST(FontStyles, ArabicLettersAreJoined) {
  const FontStyle style{20, 0, false};
  EXPECT_LT(textWidth("ببب", style), 3 * textWidth("ب", style) - 10);
  // What keeps them apart takes no room itself.
  EXPECT_NEAR(textWidth("ب\u200Cب", style), 2 * textWidth("ب", style), 0.01);
}

TEST(FontStyles, SharedSignsAreOfTheScriptAroundThem) {
  // A comma of the Arabic font, not a square of the far east's.
  const FontStyle style{20, 0, false};
  EXPECT_LT(textWidth("،", style), 10);
  EXPECT_LT(textWidth("A،", style), textWidth("A", style) + 10);
  EXPECT_LT(textWidth("है।", style), textWidth("है", style) + 10);
}

TEST(FontStyles, WidthGrowsWithSizeAndWeight) {
  EXPECT_GT(textWidth("minutes", {18, 0, false}), textWidth("minutes", {17, 0, false}));
  EXPECT_GT(textWidth("minutes", {17, 0.3, false}), textWidth("minutes", {17, 0, false}));
  EXPECT_DOUBLE_EQ(textWidth("minutes", {60, 0, false}), 2 * textWidth("minutes", {30, 0, false}));
}

TEST(FontStyles, DigitsMayAllBeAlike) {
  const FontStyle apart{56, -0.4, false}, alike{56, -0.4, true};
  EXPECT_LT(textWidth("1", apart), textWidth("8", apart));
  EXPECT_DOUBLE_EQ(textWidth("1", alike), textWidth("8", alike));
}

TEST(FontStyles, MarksTakeNoRoom) {
  const FontStyle style;
  EXPECT_DOUBLE_EQ(textWidth("e\u0301", style), textWidth("e", style));
  EXPECT_DOUBLE_EQ(textWidth("\u200F5", style), textWidth("5", style));
}

TEST(FontStyles, OtherScriptsHaveWidths) {
  const FontStyle style{20, 0, false};
  EXPECT_DOUBLE_EQ(textWidth("時間", style), 40);
  for (const char* text : {"минуты", "λεπτά", "phút trước", "דקות", "دقائق", "मिनट"})
    EXPECT_GT(textWidth(text, style), 20) << text;
  // No script of these is set with room between letters.
  EXPECT_DOUBLE_EQ(textWidth("دقائق", {10, 0, false}) * 1.5, textWidth("دقائق", {15, 0, false}));
}

TEST(FontStyles, WeightsHaveTheirNumbers) {
  EXPECT_EQ((FontStyle{17, -0.8, false}.cssWeight()), 100);
  EXPECT_EQ((FontStyle{17, -0.4, false}.cssWeight()), 300);
  EXPECT_EQ((FontStyle{17, 0, false}.cssWeight()), 400);
  EXPECT_EQ((FontStyle{17, 0.23, false}.cssWeight()), 500);
  EXPECT_EQ((FontStyle{17, 0.3, false}.cssWeight()), 600);
  EXPECT_EQ((FontStyle{17, 0.4, false}.cssWeight()), 700);
  EXPECT_EQ((FontStyle{17, 0.62, false}.cssWeight()), 900);
}

}  // namespace
}  // namespace sim
