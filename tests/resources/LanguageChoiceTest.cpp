// Which language of a bundle a phone's owner reads.
#include "tests/resources/PhoneWithFiles.h"

namespace sim {
namespace {

constexpr const char* bundleOfLanguages = "/var/jb/Some.bundle";

class LanguageChoice : public PhoneWithFiles {
 protected:
  void offer(std::initializer_list<const char*> languages) {
    for (const std::string language : languages)
      write(bundleOfLanguages + ("/" + language + ".lproj/Localizable.strings"),
            "\"WHICH\" = \"" + language + "\";");
  }

  std::string chosenFor(const std::string& locale) {
    phone.setup.locale = locale;
    return localized(bundleOfLanguages, "WHICH");
  }
};

TEST_F(LanguageChoice, PrefersTheExactRegion) {
  offer({"en", "pt", "pt-BR", "pt-PT"});
  EXPECT_EQ(chosenFor("pt_BR"), "pt-BR");
  EXPECT_EQ(chosenFor("pt_PT"), "pt-PT");
}

TEST_F(LanguageChoice, TakesTheLanguageAlone) {
  offer({"de", "en", "en-GB"});
  EXPECT_EQ(chosenFor("de_AT"), "de");
  EXPECT_EQ(chosenFor("en_US"), "en");
  EXPECT_EQ(chosenFor("en_GB"), "en-GB");
}

TEST_F(LanguageChoice, TakesAnotherRegionWhenNothingIsNearer) {
  offer({"en", "pt-BR"});
  EXPECT_EQ(chosenFor("pt_PT"), "pt-BR");
}

TEST_F(LanguageChoice, TellsChineseByScript) {
  offer({"en", "zh-Hans", "zh-Hant"});
  EXPECT_EQ(chosenFor("zh_CN"), "zh-Hans");
  EXPECT_EQ(chosenFor("zh_SG"), "zh-Hans");
  EXPECT_EQ(chosenFor("zh_TW"), "zh-Hant");
  EXPECT_EQ(chosenFor("zh_HK"), "zh-Hant");
  EXPECT_EQ(chosenFor("zh-Hant_CN"), "zh-Hant");
}

TEST_F(LanguageChoice, NeverTakesTheOtherChineseScript) {
  offer({"en", "zh-Hans"});
  EXPECT_EQ(chosenFor("zh_TW"), "en");
}

TEST_F(LanguageChoice, FallsBackOnTheBundlesOwnLanguage) {
  offer({"en", "fr"});
  EXPECT_EQ(chosenFor("fi_FI"), "en");
  write("/var/jb/Some.bundle/Info.plist",
        "<plist version=\"1.0\"><dict><key>CFBundleDevelopmentRegion</key><string>fr</string>"
        "</dict></plist>");
  EXPECT_EQ(chosenFor("fi_FI"), "fr");
}

TEST_F(LanguageChoice, ReadsFolderNamesWithUnderscores) {
  offer({"en", "pt_BR"});
  EXPECT_EQ(chosenFor("pt_BR"), "pt_BR");
}

TEST_F(LanguageChoice, FillsNoGapFromAnotherLanguage) {
  offer({"en", "fr"});
  write("/var/jb/Some.bundle/en.lproj/Localizable.strings", "\"ONLY\" = \"here\";");
  phone.setup.locale = "fr_FR";
  EXPECT_EQ(localized(bundleOfLanguages, "ONLY"), "?");
}

TEST_F(LanguageChoice, LetsATableBesideTheLanguagesHideThem) {
  offer({"en"});
  write("/var/jb/Some.bundle/Localizable.strings", "\"WHICH\" = \"beside\";");
  EXPECT_EQ(chosenFor("en_US"), "beside");
}

}  // namespace
}  // namespace sim
