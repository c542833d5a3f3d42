#include "simulator/springboard/ClockText.h"

#include <gtest/gtest.h>

namespace sim {
namespace {

constexpr double minute = 60, hour = 3600, day = 86400;

TEST(ClockText, CountsTwelveHoursWhereThatIsUsual) {
  EXPECT_EQ(clockText(22 * hour, "en_US"), "10:00");
  EXPECT_EQ(clockText(22 * hour, "en"), "10:00");
  EXPECT_EQ(clockText(22 * hour, "en_GB"), "22:00");
  EXPECT_EQ(clockText(22 * hour, "de_DE"), "22:00");
  EXPECT_EQ(clockText(0, "en_US"), "12:00");
  EXPECT_EQ(clockText(12 * hour, "en_US"), "12:00");
  EXPECT_EQ(clockText(0, "de_DE"), "0:00");
}

TEST(ClockText, ShowsWholeMinutesOfAnyDay) {
  EXPECT_EQ(clockText(9000 * day + 9 * hour + 5 * minute + 59.9, "de_DE"), "9:05");
  EXPECT_EQ(clockText(-minute, "de_DE"), "23:59");
}

TEST(ClockText, IsWrittenInTheDigitsOfItsLanguage) {
  EXPECT_EQ(clockText(22 * hour + 9 * minute, "ar_SA"), "١٠:٠٩");
  EXPECT_EQ(clockText(22 * hour, "ar_AE"), "22:00");
}

}  // namespace
}  // namespace sim
