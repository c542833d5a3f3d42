// Dates, times, numbers and units in the languages of phones.
#include "simulator/foundation/LocaleText.h"

#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

struct DayText : FoundationTest {};
struct ClockText : FoundationTest {};
struct NumberText : FoundationTest {};
struct UnitText : FoundationTest {};

constexpr double minute = 60, hour = 3600, day = 86400;
constexpr double newYear = 820454400;  // Friday 2027-01-01 00:00:00 UTC

TEST_F(DayText, IsWrittenInTheOwnersLanguage) {
  EXPECT_EQ(dayText(newYear, "en_US"), "Friday, January 1");
  EXPECT_EQ(dayText(newYear, "ar_SA"), "الجمعة، ١ يناير");
  EXPECT_EQ(dayText(newYear, "de_DE"), "Freitag, 1. Januar");
  EXPECT_EQ(dayText(newYear, "es_ES"), "viernes, 1 de enero");
  EXPECT_EQ(dayText(newYear, "fr"), "vendredi 1 janvier");
  EXPECT_EQ(dayText(newYear, "it-IT"), "venerdì 1 gennaio");
  EXPECT_EQ(dayText(newYear, "ja_JP"), "1月1日金曜日");
  EXPECT_EQ(dayText(newYear, "nl_NL"), "vrijdag 1 januari");
  EXPECT_EQ(dayText(newYear, "pt_BR"), "sexta-feira, 1 de janeiro");
}

// Those whose words the extension speaks, besides.
TEST_F(DayText, KnowsAllLanguagesOfTheExtension) {
  EXPECT_EQ(dayText(newYear, "he_IL"), "יום שישי, 1 בינואר");
  EXPECT_EQ(dayText(newYear, "hi_IN"), "शुक्रवार, 1 जनवरी");
  EXPECT_EQ(dayText(newYear, "ko_KR"), "1월 1일 금요일");
  EXPECT_EQ(dayText(newYear, "pl_PL"), "piątek, 1 stycznia");
  EXPECT_EQ(dayText(newYear, "ru_RU"), "пятница, 1 января");
  EXPECT_EQ(dayText(newYear, "sv_SE"), "fredag 1 januari");
  EXPECT_EQ(dayText(newYear, "tr_TR"), "1 Ocak Cuma");
  EXPECT_EQ(dayText(newYear, "uk_UA"), "пʼятниця, 1 січня");
  EXPECT_EQ(dayText(newYear, "vi_VN"), "Thứ Sáu, 1 tháng 1");
  EXPECT_EQ(dayText(newYear, "zh_CN"), "1月1日星期五");
  EXPECT_EQ(dayText(newYear, "zh_TW"), "1月1日 星期五");
}

TEST_F(DayText, IsEnglishInLanguagesThatNobodyDescribed) {
  EXPECT_EQ(dayText(newYear, "arc_SY"), "Friday, January 1");
  EXPECT_EQ(dayText(newYear, ""), "Friday, January 1");
}

TEST_F(DayText, HasTheGregorianYearWhereAnotherIsUsual) {
  EXPECT_EQ(dayText(newYear, "th_TH"), "วันศุกร์ที่ 1 มกราคม");
  EXPECT_EQ(dayText(newYear, "fa_IR"), "جمعه ۱ ژانویه");
  EXPECT_EQ(dayText(newYear, "ar_SA@numbers=latn"), "الجمعة، 1 يناير");
}

TEST_F(DayText, ChangesAtMidnight) {
  EXPECT_EQ(dayText(newYear - 0.5, "en"), "Thursday, December 31");
  EXPECT_EQ(dayText(newYear + day - 0.5, "en"), "Friday, January 1");
  EXPECT_EQ(dayText(newYear + day, "en"), "Saturday, January 2");
}

TEST_F(DayText, KnowsTheCalendar) {
  EXPECT_EQ(dayText(0, "en"), "Monday, January 1") << "2001, the reference date";
  EXPECT_EQ(dayText(-1, "en"), "Sunday, December 31");
  EXPECT_EQ(dayText(newYear + 424 * day, "en"), "Tuesday, February 29") << "2028";
  EXPECT_EQ(dayText(newYear + 425 * day, "ar"), "الأربعاء، ١ مارس");
  EXPECT_EQ(dayText(newYear + 29 * day, "ar"), "السبت، ٣٠ يناير");
}

TEST_F(ClockText, CountsTwelveHoursWhereThatIsUsual) {
  EXPECT_EQ(clockText(22 * hour, "en_US"), "10:00");
  EXPECT_EQ(clockText(22 * hour, "en"), "10:00");
  EXPECT_EQ(clockText(22 * hour, "ko_KR"), "10:00");
  EXPECT_EQ(clockText(22 * hour, "zh_TW"), "10:00");
  EXPECT_EQ(clockText(22 * hour, "en_GB"), "22:00");
  EXPECT_EQ(clockText(22 * hour, "de_DE"), "22:00");
  EXPECT_EQ(clockText(0, "en_US"), "12:00");
  EXPECT_EQ(clockText(12 * hour, "en_US"), "12:00");
  EXPECT_EQ(clockText(0, "de_DE"), "00:00");
}

TEST_F(ClockText, IsWrittenAsItsRegionDoes) {
  EXPECT_EQ(clockText(9 * hour, "ja_JP"), "9:00");
  EXPECT_EQ(clockText(22 * hour, "fi_FI"), "22.00");
  EXPECT_EQ(clockText(22 * hour, "bg_BG"), "22:00 ч.");
}

TEST_F(ClockText, ShowsWholeMinutesOfAnyDay) {
  EXPECT_EQ(clockText(9000 * day + 9 * hour + 5 * minute + 59.9, "de_DE"), "09:05");
  EXPECT_EQ(clockText(-minute, "de_DE"), "23:59");
}

TEST_F(ClockText, IsWrittenInTheDigitsOfItsLanguage) {
  EXPECT_EQ(clockText(22 * hour + 9 * minute, "ar_SA"), "١٠:٠٩");
  EXPECT_EQ(clockText(22 * hour, "ar_EG"), "١٠:٠٠");
  EXPECT_EQ(clockText(22 * hour, "ar_MA"), "22:00");
}

TEST_F(NumberText, HasTheDigitsOfItsLanguage) {
  EXPECT_EQ(numberText("1234567", "en_US"), "1234567");
  EXPECT_EQ(numberText("-12", "de_DE"), "-12");
  EXPECT_EQ(numberText("12", "ar"), "١٢");
  EXPECT_EQ(numberText("-12", "ar_SA"), "\u061c-١٢");
  EXPECT_EQ(numberText("-12", "ar_MA"), "\u200e-12");
  EXPECT_EQ(numberText("12", "ckb_IQ"), "١٢");
  EXPECT_EQ(numberText("12", "fa_IR"), "۱۲");
  EXPECT_EQ(numberText("12", "mr_IN"), "१२");
  EXPECT_EQ(numberText("18446744073709551615", "en"), "18446744073709551615");
}

TEST_F(NumberText, HasTheDigitsOfItsSystemsArabic) {
  const auto digitsOn = [](const char* version, const char* locale) {
    Phone::current().setup.systemVersion = version;
    const std::string text = numberText("12", locale);
    Phone::current().setup.systemVersion = sim::Setup().systemVersion;
    return text;
  };
  EXPECT_EQ(digitsOn("17.7", "ar"), "١٢");
  EXPECT_EQ(digitsOn("18.0", "ar"), "12");
  EXPECT_EQ(digitsOn("18.0", "ar_SA"), "١٢");
  EXPECT_EQ(digitsOn("18.0", "ar@numbers=arab"), "١٢");
  EXPECT_EQ(digitsOn("15.4", "ar_AE"), "١٢");
  EXPECT_EQ(digitsOn("16.0", "ar_AE"), "12");
}

TEST_F(NumberText, RoundsHalvesToTheEvenOne) {
  EXPECT_EQ(numberText("2.5", "en"), "2");
  EXPECT_EQ(numberText("3.5", "en"), "4");
  EXPECT_EQ(numberText("1e3", "en"), "1000");
}

TEST_F(UnitText, FollowsThePluralRules) {
  EXPECT_EQ(unitText("hour", 1, UnitWidth::full, "en_US"), "hour");
  EXPECT_EQ(unitText("hour", 0, UnitWidth::full, "en_US"), "hours");
  EXPECT_EQ(unitText("hour", 2, UnitWidth::full, "ar_SA"), "ساعتان");
  EXPECT_EQ(unitText("hour", 3, UnitWidth::full, "ar_SA"), "ساعات");
  EXPECT_EQ(unitText("hour", 11, UnitWidth::full, "ar_SA"), "ساعة");
  EXPECT_EQ(unitText("hour", 21, UnitWidth::full, "ru_RU"), "час");
  EXPECT_EQ(unitText("hour", 12, UnitWidth::abbreviated, "de_DE"), "Std.");
  EXPECT_EQ(unitText("minute", 12, UnitWidth::abbreviated, "zh_Hant_TW"), "分鐘");
}

}  // namespace
}  // namespace sim
