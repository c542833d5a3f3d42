#include "simulator/script/words/Utf8.h"

#include <gtest/gtest.h>

namespace sim {
namespace {

TEST(Utf8, WritesEveryLength) {
  EXPECT_EQ(utf8('a'), "a");
  EXPECT_EQ(utf8(0xe9), "é");
  EXPECT_EQ(utf8(0x20ac), "€");
  EXPECT_EQ(utf8(0x1f319), "\U0001F319");
  EXPECT_EQ(utf8(0xd800), "");
  EXPECT_EQ(utf8(0x110000), "");
}

TEST(Utf8, WhatItWritesIsWellFormed) {
  for (unsigned long scalar = 1; scalar < 0x110000; scalar += 97) {
    const std::string text = utf8(scalar);
    EXPECT_EQ(validUtf8Prefix(text), text.size()) << scalar;
    EXPECT_EQ(characterCount(text), text.empty() ? 0u : 1u) << scalar;
  }
}

TEST(Utf8, FindsTheFirstBadByte) {
  EXPECT_EQ(validUtf8Prefix("abc"), 3u);
  EXPECT_EQ(validUtf8Prefix("é\x80"), 2u);
  for (const char* bad :
       {"\xc0\x80", "\xc1\xbf", "\xe0\x80\x80", "\xed\xa0\x80", "\xf0\x80\x80\x80",
        "\xf4\x90\x80\x80", "\xf5\x80\x80\x80", "\xff", "\xe2\x82", "\xc3x"})
    EXPECT_EQ(validUtf8Prefix(bad), 0u) << bad;
}

}  // namespace
}  // namespace sim
