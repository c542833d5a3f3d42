#include <gtest/gtest.h>

#include "simulator/script/names/LocaleNames.h"

namespace sim {
namespace {

TEST(LocaleIdentifiers, AreMadeOfKnownCodes) {
  for (const char* known : {"en_US", "ar", "ar-SA", "zh_Hans_CN", "zh-Hant", "es_419", "arc_SY",
                            "mar_IN", "en_US_POSIX"})
    EXPECT_TRUE(isLocale(known)) << known;
}

TEST(LocaleIdentifiers, LanguageAndRegionNeedNotGoTogether) {
  EXPECT_TRUE(isLocale("en_AR"));
  EXPECT_TRUE(isLocale("ar_IS"));
}

TEST(LocaleIdentifiers, AreRefusedWithAnUnknownPart) {
  for (const char* unknown : {"", "en_", "_US", "xx_US", "en_UK", "en_us", "EN_US", "zh_Hens_CN",
                              "en_US_", "en_US_nowhere", "enUS", "en_US_GB"})
    EXPECT_FALSE(isLocale(unknown)) << unknown;
}

TEST(LocaleIdentifiers, TheNearestIsOneThatIsSpokenSomewhere) {
  EXPECT_EQ(nearestLocale("de_DF"), "; did you mean \"de_DE\"?");
  EXPECT_EQ(nearestLocale("ar_sA"), "; did you mean \"ar_SA\"?");
  EXPECT_EQ(nearestLocale("arr_SA"), "; did you mean \"ar_SA\"?");
  EXPECT_EQ(nearestLocale("nowhere"), "");
}

}  // namespace
}  // namespace sim
