#include <gtest/gtest.h>

#include "simulator/machine/NearestName.h"

namespace sim {
namespace {

TEST(NearestNames, DistanceCountsLettersAndSwaps) {
  EXPECT_EQ(editDistance("", ""), 0u);
  EXPECT_EQ(editDistance("", "abc"), 3u);
  EXPECT_EQ(editDistance("abc", ""), 3u);
  EXPECT_EQ(editDistance("pause", "pause"), 0u);
  EXPECT_EQ(editDistance("puase", "pause"), 1u);
  EXPECT_EQ(editDistance("pausse", "pause"), 1u);
  EXPECT_EQ(editDistance("ause", "pause"), 1u);
  EXPECT_EQ(editDistance("Pause", "pause"), 1u);
  EXPECT_EQ(editDistance("kitten", "sitting"), 3u);
}

TEST(NearestNames, TheNearestIsNamed) {
  EXPECT_EQ(didYouMean("SBMediaControler", {"SBMediaPlayer", "SBMediaController", "SBVolume"}),
            "; did you mean \"SBMediaController\"?");
  EXPECT_EQ(didYouMean("pausee", {"please", "pause"}), "; did you mean \"pause\"?");
}

TEST(NearestNames, OfEquallyNearOnesTheOneThatBeginsAlike) {
  EXPECT_EQ(didYouMean("de_DF", {"be_DE", "de_DE", "de_AF"}), "; did you mean \"de_DE\"?");
  EXPECT_EQ(didYouMean("set", {"let", "sea"}), "; did you mean \"sea\"?");
}

TEST(NearestNames, WhatIsFarIsNotNamed) {
  EXPECT_EQ(didYouMean("pause", {"volume", "setVolume:"}), "");
  EXPECT_EQ(didYouMean("pause", {}), "");
  EXPECT_EQ(didYouMean("abcdef", {"abcxyz"}), "");
  EXPECT_NE(didYouMean("abcdef", {"abcdxy"}), "");
}

TEST(NearestNames, OnlyALetterOrTwoIsASlip) {
  EXPECT_EQ(typoSuggestion("UIButtom", {"UIButton"}), "; did you mean \"UIButton\"?");
  EXPECT_EQ(typoSuggestion("UIButton", {"UIButton", "UIButtons"}), "") << "it is known";
  EXPECT_EQ(typoSuggestion("DozewelButtom", {"DozewellButton"}),
            "; did you mean \"DozewellButton\"?");
  EXPECT_EQ(typoSuggestion("DozeBoton", {"DozewellButton"}), "");
  EXPECT_EQ(typoSuggestion("kay", {"key"}), "") << "short names are near to many";
}

}  // namespace
}  // namespace sim
