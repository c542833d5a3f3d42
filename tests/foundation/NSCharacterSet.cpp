// Sets of characters, and what trimming takes away.
#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using CharacterSets = FoundationTest;

objc::Object namedSet(const char* name) {
  Class sets = objc_getClass("NSCharacterSet");
  const SEL selector = sel_registerName(name);
  return objc::Object(reinterpret_cast<id (*)(Class, SEL)>(&objc_msgSend)(sets, selector));
}

bool isMember(objc::Object set, char16_t unit) {
  return objc::send<bool, "characterIsMember:">(set, unit);
}

std::string trimmed(const char* given, objc::Object set) {
  return text(objc::send<objc::Object, "stringByTrimmingCharactersInSet:">(string(given), set));
}

TEST_F(CharacterSets, TellBlanksFromLineBreaks) {
  const auto blanks = namedSet("whitespaceCharacterSet");
  const auto breaks = namedSet("newlineCharacterSet");
  const auto both = namedSet("whitespaceAndNewlineCharacterSet");
  for (const char16_t unit : {u' ', u'\t', u'\u00A0', u'\u2003', u'\u3000'}) {
    EXPECT_TRUE(isMember(blanks, unit)) << int(unit);
    EXPECT_FALSE(isMember(breaks, unit)) << int(unit);
    EXPECT_TRUE(isMember(both, unit)) << int(unit);
  }
  for (const char16_t unit : {u'\n', u'\r', u'\v', u'\f', u'\u0085', u'\u2028', u'\u2029'}) {
    EXPECT_FALSE(isMember(blanks, unit)) << int(unit);
    EXPECT_TRUE(isMember(breaks, unit)) << int(unit);
    EXPECT_TRUE(isMember(both, unit)) << int(unit);
  }
  for (const char16_t unit : {u'a', u'\0', u'\u200B'})
    EXPECT_FALSE(isMember(both, unit)) << int(unit);
}

TEST_F(CharacterSets, MayBeListedAndInverted) {
  const auto vowels = objc::send<objc::Object, "characterSetWithCharactersInString:">(
      objc_getClass("NSCharacterSet"), string("aeiou"));
  EXPECT_TRUE(isMember(vowels, u'e'));
  EXPECT_FALSE(isMember(vowels, u'x'));
  const auto others = objc::send<objc::Object, "invertedSet">(vowels);
  EXPECT_FALSE(isMember(others, u'e'));
  EXPECT_TRUE(isMember(others, u'x'));
}

TEST_F(CharacterSets, TrimBothEndsAndNothingBetween) {
  const auto blanks = namedSet("whitespaceAndNewlineCharacterSet");
  EXPECT_EQ(trimmed(" \n a b\t", blanks), "a b");
  EXPECT_EQ(trimmed("a", blanks), "a");
  EXPECT_EQ(trimmed(" \n ", blanks), "");
  EXPECT_EQ(trimmed("", blanks), "");
  EXPECT_EQ(trimmed("xxaxx", namedSet("newlineCharacterSet")), "xxaxx");
}

}  // namespace
}  // namespace sim
