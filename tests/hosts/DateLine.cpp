#include "simulator/coversheet/DateLine.h"

#include <gtest/gtest.h>

namespace sim {
namespace {

constexpr double day = 86400;
constexpr double newYear = 820454400;  // Friday 2027-01-01 00:00:00 UTC

TEST(DateLine, IsWrittenInTheOwnersLanguage) {
  EXPECT_EQ(dateLine(newYear, "en_US"), "Friday, January 1");
  EXPECT_EQ(dateLine(newYear, "ar_SA"), "الجمعة، ١ يناير");
  EXPECT_EQ(dateLine(newYear, "de_DE"), "Freitag, 1. Januar");
  EXPECT_EQ(dateLine(newYear, "es_ES"), "viernes, 1 de enero");
  EXPECT_EQ(dateLine(newYear, "fr"), "vendredi 1 janvier");
  EXPECT_EQ(dateLine(newYear, "it-IT"), "venerdì 1 gennaio");
  EXPECT_EQ(dateLine(newYear, "ja_JP"), "1月1日金曜日");
  EXPECT_EQ(dateLine(newYear, "nl_NL"), "vrijdag 1 januari");
  EXPECT_EQ(dateLine(newYear, "pt_BR"), "sexta-feira, 1 de janeiro");
}

TEST(DateLine, IsEnglishInOtherLanguages) {
  EXPECT_EQ(dateLine(newYear, "fil_PH"), "Friday, January 1");
  EXPECT_EQ(dateLine(newYear, ""), "Friday, January 1");
}

TEST(DateLine, ChangesAtMidnight) {
  EXPECT_EQ(dateLine(newYear - 0.5, "en"), "Thursday, December 31");
  EXPECT_EQ(dateLine(newYear + day - 0.5, "en"), "Friday, January 1");
  EXPECT_EQ(dateLine(newYear + day, "en"), "Saturday, January 2");
}

TEST(DateLine, KnowsTheCalendar) {
  EXPECT_EQ(dateLine(0, "en"), "Monday, January 1") << "2001, the reference date";
  EXPECT_EQ(dateLine(-1, "en"), "Sunday, December 31");
  EXPECT_EQ(dateLine(newYear + 424 * day, "en"), "Tuesday, February 29") << "2028";
  EXPECT_EQ(dateLine(newYear + 425 * day, "ar"), "الأربعاء، ١ مارس");
  EXPECT_EQ(dateLine(newYear + 29 * day, "ar"), "السبت، ٣٠ يناير");
}

}  // namespace
}  // namespace sim
