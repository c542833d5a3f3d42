#include "simulator/foundation/NSBundle.h"

#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using objc::Object;
using objc::send;

constexpr const char* folder = "/var/jb/Test.bundle";

class NSBundleTest : public FoundationTest {
 protected:
  void TearDown() override {
    phone.setup.locale = "en_US";
    std::filesystem::remove_all(phone.file(folder));
    FoundationTest::TearDown();
  }

  void add(const std::string& name, const std::string& content = "x") {
    writeFile(std::string(folder) + '/' + name, content);
  }
  static Object bundle() {
    return send<Object, "bundleWithPath:">(cls("NSBundle"), string(folder));
  }
  static std::string path(const char* name, const char* type) {
    return text(send<Object, "pathForResource:ofType:">(bundle(), string(name), string(type)));
  }
  static std::string localized(const char* key, Object otherwise = nullptr) {
    return text(send<Object, "localizedStringForKey:value:table:">(bundle(), string(key), otherwise,
                                                                   Object()));
  }
};

TEST_F(NSBundleTest, needsAFolder) {
  EXPECT_FALSE(bundle());
  add("a.png");
  EXPECT_TRUE(bundle());
  EXPECT_EQ(text(send<Object, "bundlePath">(bundle())), folder);
}

TEST_F(NSBundleTest, isOneObjectPerFolder) {
  add("a.png");
  const Object first = bundle();
  EXPECT_EQ(first, bundle());
}

TEST_F(NSBundleTest, findsResources) {
  add("icon.png");
  add("de.lproj/page.nib");
  add("en.lproj/page.nib");
  add("button~iphone.png");
  EXPECT_EQ(path("icon", "png"), std::string(folder) + "/icon.png");
  EXPECT_EQ(path("icon", ".png"), std::string(folder) + "/icon.png");
  EXPECT_EQ(path("icon.png", ""), std::string(folder) + "/icon.png");
  EXPECT_EQ(path("button", "png"), std::string(folder) + "/button~iphone.png");
  EXPECT_EQ(path("Icon", "png"), "");
  phone.setup.locale = "de_AT";
  EXPECT_EQ(path("page", "nib"), std::string(folder) + "/de.lproj/page.nib");
}

TEST_F(NSBundleTest, translates) {
  add("en.lproj/Localizable.strings", "\"BACK\" = \"Back\";");
  add("pt-BR.lproj/Localizable.strings", "\"BACK\" = \"Voltar\";");
  add("zh-Hans.lproj/Localizable.strings", "\"BACK\" = \"返回\";");
  EXPECT_EQ(localized("BACK"), "Back");
  EXPECT_EQ(localized("MISSING"), "MISSING");
  EXPECT_EQ(localized("MISSING", string("Otherwise")), "Otherwise");
  EXPECT_EQ(localized("MISSING", string("")), "MISSING");
}

TEST_F(NSBundleTest, choosesTheUsersLanguage) {
  for (const char* name : {"en", "pt-BR", "zh-Hans", "zh-Hant", "no"})
    add(std::string(name) + ".lproj/x");
  const auto chosen = [&](const char* locale) {
    return BundleFiles(phone.file(folder), locale, "en").preferredLocalization();
  };
  EXPECT_EQ(chosen("pt_BR"), "pt-BR");
  EXPECT_EQ(chosen("zh_CN"), "zh-Hans");
  EXPECT_EQ(chosen("zh_TW"), "zh-Hant");
  EXPECT_EQ(chosen("nb_NO"), "no");
  EXPECT_EQ(chosen("ja_JP"), "en");
}

TEST_F(NSBundleTest, fallsBackToItsOwnLanguage) {
  add("Info.plist",
      "<plist><dict><key>CFBundleDevelopmentRegion</key><string>fr</string>"
      "<key>CFBundleIdentifier</key><string>com.example.test</string></dict></plist>");
  add("en.lproj/Localizable.strings", "\"BACK\" = \"Back\";");
  add("fr.lproj/Localizable.strings", "\"BACK\" = \"Retour\";");
  phone.setup.locale = "ja_JP";
  EXPECT_EQ(localized("BACK"), "Retour");
  EXPECT_EQ(text(send<Object, "bundleIdentifier">(bundle())), "com.example.test");
}

TEST_F(NSBundleTest, isUntranslatedByATableWithAMistake) {
  add("en.lproj/Localizable.strings", "\"BACK\" = \"Back\"; \"CANCEL\" = ;");
  EXPECT_EQ(localized("BACK"), "BACK");
}

}  // namespace
}  // namespace sim
