#include "tweak/support/Arithmetic.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr long least = std::numeric_limits<long>::min(),
               greatest = std::numeric_limits<long>::max();

TEST(SaturatingCast, CutsTowardZero) {
  EXPECT_EQ(saturatingCast<long>(59.9), 59);
  EXPECT_EQ(saturatingCast<long>(-59.9), -59);
  EXPECT_EQ(saturatingCast<int>(0.5F), 0);
}

TEST(SaturatingCast, EndsWhereTheTypeEnds) {
  EXPECT_EQ(saturatingCast<long>(9.3e18), greatest);
  EXPECT_EQ(saturatingCast<long>(-9.3e18), least);
  EXPECT_EQ(saturatingCast<long>(infinite), greatest);
  EXPECT_EQ(saturatingCast<long>(-infinite), least);
  EXPECT_EQ(saturatingCast<int>(3e9F), 2147483647);
  EXPECT_EQ(saturatingCast<int>(-3e9F), -2147483647 - 1);
}

TEST(SaturatingCast, TakesTheEndsThemselves) {
  EXPECT_EQ(saturatingCast<long>(0x1p63), greatest);
  EXPECT_EQ(saturatingCast<long>(-0x1p63), least);
  EXPECT_EQ(saturatingCast<long>(std::nextafter(0x1p63, 0)), 9223372036854774784);
  EXPECT_EQ(saturatingCast<int>(0x1p31F), 2147483647);
  EXPECT_EQ(saturatingCast<int>(std::nextafterf(0x1p31F, 0)), 2147483520);
}

TEST(SaturatingCast, MakesZeroOfWhatIsNoNumber) {
  EXPECT_EQ(saturatingCast<long>(std::nan("")), 0);
  EXPECT_EQ(saturatingCast<int>(std::nanf("")), 0);
}

TEST(WrappingDifference, WrapsAround) {
  EXPECT_EQ(wrappingDifference(5, 7), -2);
  EXPECT_EQ(wrappingDifference(least, 1), greatest);
  EXPECT_EQ(wrappingDifference(greatest, -1), least);
}

}  // namespace
