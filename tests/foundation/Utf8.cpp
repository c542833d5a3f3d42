// The one reader and writer of UTF-8.
#include <gtest/gtest.h>

#include "simulator/foundation/Unicode.h"

namespace sim::unicode {
namespace {

TEST(Utf8, WritesEveryLength) {
  EXPECT_EQ(utf8Of('a'), "a");
  EXPECT_EQ(utf8Of(0xe9), "é");
  EXPECT_EQ(utf8Of(0x20ac), "€");
  EXPECT_EQ(utf8Of(0x1f319), "\U0001F319");
  EXPECT_EQ(utf8Of(0xd800), "");
  EXPECT_EQ(utf8Of(0x110000), "");
}

TEST(Utf8, WhatItWritesIsWellFormed) {
  for (unsigned long scalar = 1; scalar < 0x110000; scalar += 97) {
    const std::string text = utf8Of(scalar);
    EXPECT_EQ(validUtf8Prefix(text), text.size()) << scalar;
    EXPECT_EQ(characterCount(text), text.empty() ? 0u : 1u) << scalar;
    const auto units = fromUtf8(text);
    ASSERT_TRUE(units) << scalar;
    EXPECT_EQ(toUtf8(*units), text) << scalar;
  }
}

TEST(Utf8, FindsTheFirstBadByte) {
  EXPECT_EQ(validUtf8Prefix("abc"), 3u);
  EXPECT_EQ(validUtf8Prefix("é\x80"), 2u);
  for (const char* bad :
       {"\xc0\x80", "\xc1\xbf", "\xe0\x80\x80", "\xed\xa0\x80", "\xf0\x80\x80\x80",
        "\xf4\x90\x80\x80", "\xf5\x80\x80\x80", "\xff", "\xe2\x82", "\xc3x"}) {
    EXPECT_EQ(validUtf8Prefix(bad), 0u) << bad;
    EXPECT_FALSE(fromUtf8(bad)) << bad;
  }
}

TEST(Utf8, PutsAMarkForWhatIsNoCharacter) {
  EXPECT_EQ(fromUtf8Lossy("a\xff"
                          "b\xe2\x82"),
            u"a\uFFFDb\uFFFD");
  const char16_t unpaired[] = {u'a', 0xd800, u'b', 0xdc00};
  EXPECT_EQ(toUtf8({unpaired, 4}), "a\uFFFDb\uFFFD");
}

TEST(Utf8, NothingIsATextToo) {
  EXPECT_EQ(fromUtf8({}), u"");
  EXPECT_EQ(fromUtf8Lossy({}), u"");
  EXPECT_EQ(toUtf8({}), "");
  EXPECT_EQ(upperCase({}), u"");
}

TEST(Utf8, CasesMayChangeTheLength) {
  EXPECT_EQ(upperCase(u"straße"), u"STRASSE");
  EXPECT_EQ(lowerCase(u"ΣΑΣ"), u"σας") << "a sigma at the end of a word";
}

}  // namespace
}  // namespace sim::unicode
