// The extension's own bundle, as the package installs it, on phones of several countries.
#include "tests/resources/PhoneWithFiles.h"

namespace sim {
namespace {

constexpr const char* bundle = "/var/jb/Library/Application Support/Dozewell2Bundle.bundle";

class Installed : public PhoneWithFiles {
 protected:
  Installed() {
    std::filesystem::copy(DOZEWELL_PACKAGE, phone.root(), std::filesystem::copy_options::recursive);
  }

  std::string confirmIn(const std::string& locale) {
    phone.setup.locale = locale;
    return localized(bundle, "CONFIRM");
  }
};

TEST_F(Installed, SpeaksTheOwnersLanguage) {
  EXPECT_EQ(confirmIn("en_US"), "Confirm");
  EXPECT_EQ(confirmIn("de_CH"), "Bestätigen");
  EXPECT_EQ(confirmIn("ar_SA"), "تأكيد");
  EXPECT_EQ(confirmIn("pt_BR"), "Confirmar");
  EXPECT_EQ(confirmIn("pt_PT"), "Confirmar");
  EXPECT_EQ(confirmIn("zh_CN"), "确认");
  EXPECT_EQ(confirmIn("zh_HK"), "確認");
  EXPECT_EQ(confirmIn("fi_FI"), "Confirm");
}

TEST_F(Installed, HasEveryTextInEveryLanguage) {
  for (const auto* locale : {"ar", "de", "en",    "es", "fr", "he", "hi", "it", "ja",    "ko",
                             "nl", "pl", "pt_BR", "ru", "sv", "tr", "uk", "vi", "zh_CN", "zh_TW"}) {
    phone.setup.locale = locale;
    for (const auto* key :
         {"1_SONG", "N_SONG", "SONG", "SONGS", "HOURS", "MINUTES", "YOUR_MUSIC_WILL_STOP_IN",
          "BACK", "CONFIRM", "CANCEL", "ON_TIMER_START", "ON_TIMER_END"})
      EXPECT_NE(localized(bundle, key), "?") << locale << ' ' << key;
  }
  EXPECT_EQ(journal(), std::vector<std::string>());
}

TEST_F(Installed, SaysWhatItIs) {
  EXPECT_EQ(text(objc::send<objc::Object, "bundleIdentifier">(bundleAt(bundle))),
            "com.corvane.dozewell2.bundle");
}

TEST_F(Installed, HasIconsForTheScreen) {
  const auto path = objc::send<objc::Object, "pathForResource:ofType:">(
      bundleAt(bundle), string("timerIcon"), string("png"));
  EXPECT_EQ(text(path), std::string(bundle) + "/timerIcon.png");
  const auto icon =
      objc::send<objc::Object, "imageWithContentsOfFile:">(objc_getClass("UIImage"), path);
  EXPECT_TRUE(description(icon).ends_with(" {20, 20} renderingMode=automatic>"))
      << description(icon);
}

}  // namespace
}  // namespace sim
