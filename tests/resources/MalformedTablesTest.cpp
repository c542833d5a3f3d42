// Tables of strings that somebody else wrote: read whole, or not at all and with a word in the log.
#include "tests/resources/PhoneWithFiles.h"

namespace sim {
namespace {

using namespace std::string_literals;

constexpr const char* malformed = "/var/jb/Some.bundle";
constexpr const char* complaint =
    "log \"Unable to load .strings file: /var/jb/Some.bundle / Localizable\"";

class Tables : public PhoneWithFiles {
 protected:
  std::string read(const std::string& table, std::string_view key = "KEY") {
    write(malformed + "/en.lproj/Localizable.strings"s, table);
    return localized(malformed, key);
  }

  // Its good entry counts for nothing either.
  void expectRefused(const std::string& table) {
    const long before = count(complaint);
    EXPECT_EQ(read("\"KEY\" = \"good\";\n" + table), "?") << table;
    EXPECT_EQ(count(complaint), before + 1) << table;
  }
};

TEST_F(Tables, AreReadInEveryEncoding) {
  EXPECT_EQ(read("\"KEY\" = \"dé\";"), "dé");
  EXPECT_EQ(read("\xef\xbb\xbf\"KEY\" = \"dé\";"), "dé");
  const std::string little = "\"\0K\0E\0Y\0\"\0=\0\"\0d\0\xe9\0\"\0;\0"s;
  const std::string big = "\0\"\0K\0E\0Y\0\"\0=\0\"\0d\0\xe9\0\"\0;"s;
  EXPECT_EQ(read("\xff\xfe" + little), "dé");
  EXPECT_EQ(read("\xfe\xff" + big), "dé");
  EXPECT_EQ(read(little), "dé");
  EXPECT_EQ(read(big), "dé");
}

TEST_F(Tables, UnderstandEscapes) {
  EXPECT_EQ(read(R"("KEY" = "a\"b\\c\nd\te";)"), "a\"b\\c\nd\te");
  EXPECT_EQ(read(R"("KEY" = "\U263a\U41z\101";)"),
            "☺Az"
            "A");
  EXPECT_EQ(read(R"("KEY" = "\Ud83c\Udf19";)"), "🌙");
  EXPECT_EQ(read(R"("KEY" = "\u263a";)"), "u263a");  // only the capital letter means a number
}

TEST_F(Tables, AllowWhatThePlatformAllows) {
  EXPECT_EQ(read("// one line\n/* \"KEY\" = \"no\"; */ KEY = word;"), "word");
  EXPECT_EQ(read("'KEY' = 'it is';"), "it is");
  EXPECT_EQ(read("\"KEY\";"), "KEY");
  EXPECT_EQ(read("\"KEY\" = \"first\"; \"KEY\" = \"last\";"), "last");
  EXPECT_EQ(read("\"KEY\"=\"two\nlines\";"), "two\nlines");
}

TEST_F(Tables, MayBePropertyLists) {
  EXPECT_EQ(read("<?xml version=\"1.0\"?><plist version=\"1.0\"><dict><key>KEY</key>"
                 "<string>a &amp; b</string><key>N</key><integer>1</integer></dict></plist>"),
            "a & b");
  const std::string binary =
      "bplist00\xd1\x01\x02SKEYRhi\x08\x0b\x0f\0\0\0\0\0\0\1\1\0\0\0\0\0\0\0\3"
      "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x12"s;
  EXPECT_EQ(read(binary), "hi");
}

TEST_F(Tables, AreRefusedWhenMalformed) {
  expectRefused("\"A\" = \"no semicolon\"");
  expectRefused("\"A\" \"no sign\";");
  expectRefused("\"A\" = ;");
  expectRefused("= \"no key\";");
  expectRefused("\"A\" = \"never closed;");
  expectRefused("\"A\" = \"ends in an escape\\");
  expectRefused("/* never closed");
  expectRefused("\"A\" = \"a\"; }");
  expectRefused("\"A\" = \"not UTF-8: \xff\";");
  expectRefused("\"A\" = (\"a\", \"list\");");
}

TEST_F(Tables, AreRefusedWhenTheyAreOtherFiles) {
  for (const std::string& other :
       {"<plist><array/></plist>"s, "<plist><dict>"s, "bplist00"s, "bplist00\xff\xff\xff\xff"s,
        "\xff\xfe\"\0K"s, "\x89PNG\r\n\x1a\n"s}) {
    const long before = count(complaint);
    EXPECT_EQ(read(other), "?");
    EXPECT_EQ(count(complaint), before + 1);
  }
}

TEST_F(Tables, MayBeEmptyOrMissing) {
  EXPECT_EQ(read(""), "?");
  EXPECT_EQ(read(" /* nothing */ \n"), "?");
  std::filesystem::remove(phone.file(malformed + "/en.lproj/Localizable.strings"s));
  EXPECT_EQ(localized(malformed, "KEY"), "?");
  EXPECT_EQ(journal(), std::vector<std::string>());
}

TEST_F(Tables, GiveTheKeyWhereNeitherTextNorValueIs) {
  write(malformed + "/en.lproj/Localizable.strings"s, "");
  const auto ask = [](objc::Object key, objc::Object value) {
    return text(objc::send<objc::Object, "localizedStringForKey:value:table:">(
        bundleAt(malformed), key, value, objc::Object()));
  };
  EXPECT_EQ(ask(string("KEY"), nullptr), "KEY");
  EXPECT_EQ(ask(string("KEY"), string("")), "KEY");
  EXPECT_EQ(ask(string("KEY"), string("value")), "value");
  EXPECT_EQ(ask(nullptr, string("value")), "value");
  EXPECT_EQ(ask(nullptr, nullptr), "");
}

TEST_F(Tables, OfNoBundleThereAreNone) {
  EXPECT_FALSE(bundleAt("/var/jb/Nowhere.bundle"));
  write("/var/jb/File.bundle", "a file");
  EXPECT_FALSE(bundleAt("/var/jb/File.bundle"));
}

}  // namespace
}  // namespace sim
