// Breaking text into lines, and shortening it.
#include <gtest/gtest.h>

#include "simulator/coretext/Typesetter.h"

namespace sim {
namespace {

std::vector<std::string> lines(std::string_view text, double width, long most = 0) {
  std::vector<std::string> texts;
  for (const TextLine& line : typeset(text, FontStyle(), width, most)) {
    EXPECT_LE(line.width, width + 0.001);
    texts.push_back(line.text);
  }
  return texts;
}

using Lines = std::vector<std::string>;

TEST(Typesetting, WhatFitsIsOneLine) {
  EXPECT_EQ(lines("Your music", 200), Lines{"Your music"});
  EXPECT_EQ(lines("", 200), Lines{});
  EXPECT_EQ(lines("Your music", textWidth("Your music", FontStyle()), 1), Lines{"Your music"});
}

TEST(Typesetting, BreaksBetweenWords) {
  EXPECT_EQ(lines("You first need to create a shortcut", 115),
            (Lines{"You first need", "to create a", "shortcut"}));
  EXPECT_EQ(lines("a well-known word", 60), (Lines{"a well-", "known", "word"}));
}

TEST(Typesetting, ParagraphsBeginLines) {
  EXPECT_EQ(lines("one\ntwo\n\nthree", 200), (Lines{"one", "two", "", "three"}));
  EXPECT_EQ(lines("one\n", 200), (Lines{"one", ""}));
}

TEST(Typesetting, LongWordsBreakAnywhere) {
  EXPECT_EQ(lines("mmmmmm", 40), (Lines{"mm", "mm", "mm"}));
  EXPECT_EQ(lines("m", 40), Lines{"m"});
}

TEST(Typesetting, ScriptsWithoutBlanksBreakAfterAnyCharacterButClosingOnes) {
  EXPECT_EQ(lines("音楽が停止する。", 17 * 4), (Lines{"音楽が停", "止する。"}));
  EXPECT_EQ(lines("音楽が停。止", 17 * 4), (Lines{"音楽が", "停。止"}));
}

TEST(Typesetting, TheLastLineIsShortened) {
  EXPECT_EQ(lines("Your music will stop in", 105, 1), Lines{"Your music…"});
  EXPECT_EQ(lines("You first need to create a shortcut", 115, 2),
            (Lines{"You first need", "to create a s…"}));
  EXPECT_EQ(lines("one\ntwo", 200, 1), Lines{"one…"});
}

TEST(Typesetting, NoRoomAtAllStillEnds) {
  EXPECT_EQ(typeset("ab", FontStyle(), 0, 0).size(), 2u);
  EXPECT_EQ(typeset("ab", FontStyle(), 0, 1).size(), 1u);
}

TEST(Typesetting, KnowsWhichLinesTakeRoomBetweenLetters) {
  EXPECT_TRUE(typeset("минуты, 5", FontStyle(), 200, 1)[0].isTracked);
  EXPECT_FALSE(typeset("دقائق", FontStyle(), 200, 1)[0].isTracked);
}

}  // namespace
}  // namespace sim
