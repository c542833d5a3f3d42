#include <gtest/gtest.h>

#include <cmath>

#include "simulator/machine/Journal.h"

namespace sim {
namespace {

TEST(Notation, NumbersAreShortAndExact) {
  EXPECT_EQ(notation(0.0), "0");
  EXPECT_EQ(notation(61.0), "61");
  EXPECT_EQ(notation(0.1), "0.1");
  EXPECT_EQ(notation(0.1f), "0.1");
  EXPECT_EQ(notation(double(0.1f)), "0.10000000149011612");
  EXPECT_EQ(notation(-2.5), "-2.5");
  EXPECT_EQ(notation(1e5), "100000");
  EXPECT_EQ(notation(1e-7), "1e-07");
  EXPECT_EQ(notation(1e20), "1e+20");
  EXPECT_EQ(notation(820533600.25), "820533600.25");
  EXPECT_EQ(notation(-9223372036854775807L - 1), "-9223372036854775808");
}

TEST(Notation, BooleansAreYesAndNo) {
  EXPECT_EQ(notation(true), "YES");
  EXPECT_EQ(notation(false), "NO");
}

TEST(Notation, TextIsQuotedAsScriptsWriteIt) {
  EXPECT_EQ(quoted("Audio/Video"), R"("Audio/Video")");
  EXPECT_EQ(quoted("a \"b\" \\ \n \x01 é"), R"("a \"b\" \\ \n \u{1} é")");
}

}  // namespace
}  // namespace sim
