#include "simulator/foundation/NSRange.h"
#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using objc::Object;
using objc::send;
using NSStringContentTest = FoundationTest;

TEST_F(NSStringContentTest, findsText) {
  const NSRange found = send<NSRange, "rangeOfString:">(string("a😀bc"), string("bc"));
  EXPECT_EQ(found.location, 3u);
  EXPECT_EQ(found.length, 2u);
  const NSRange missing = send<NSRange, "rangeOfString:">(string("abc"), string("x"));
  EXPECT_EQ(missing.location, NSNotFound);
  EXPECT_EQ(missing.length, 0u);
}

TEST_F(NSStringContentTest, looksForParts) {
  const Object whole = string("ar_SA");
  EXPECT_TRUE((send<bool, "containsString:">(whole, string("r_S"))));
  EXPECT_FALSE((send<bool, "containsString:">(whole, string("AR"))));
  EXPECT_FALSE((send<bool, "containsString:">(whole, string(""))));
  EXPECT_TRUE((send<bool, "hasPrefix:">(whole, string("ar"))));
  EXPECT_FALSE((send<bool, "hasPrefix:">(whole, string("SA"))));
  EXPECT_TRUE((send<bool, "hasSuffix:">(whole, string("SA"))));
  EXPECT_FALSE((send<bool, "hasSuffix:">(whole, string("ar"))));
}

TEST_F(NSStringContentTest, cutsSubstrings) {
  const Object whole = string("abcdef");
  EXPECT_EQ(text(send<Object, "substringFromIndex:">(whole, 2ul)), "cdef");
  EXPECT_EQ(text(send<Object, "substringFromIndex:">(whole, 6ul)), "");
  EXPECT_EQ(text(send<Object, "substringToIndex:">(whole, 2ul)), "ab");
  EXPECT_EQ(text(send<Object, "substringWithRange:">(whole, NSRange{1, 3})), "bcd");
}

TEST_F(NSStringContentTest, replacesEveryOccurrence) {
  const auto replaced = [](const char* whole, const char* wanted, const char* put) {
    return text(send<Object, "stringByReplacingOccurrencesOfString:withString:">(
        string(whole), string(wanted), string(put)));
  };
  EXPECT_EQ(replaced("1:01:11", "1", "١"), "١:0١:١١");
  EXPECT_EQ(replaced("aaa", "aa", "b"), "ba");
  EXPECT_EQ(replaced("abc", "x", "y"), "abc");
  EXPECT_EQ(replaced("abc", "", "y"), "abc");
}

TEST_F(NSStringContentTest, splits) {
  const auto parts = [](const char* whole, const char* separator) {
    return description(send<Object, "componentsJoinedByString:">(
        send<Object, "componentsSeparatedByString:">(string(whole), string(separator)),
        string("|")));
  };
  EXPECT_EQ(parts("a, b, c", ", "), "a|b|c");
  EXPECT_EQ(parts(",a,", ","), "|a|");
  EXPECT_EQ(parts("abc", "x"), "abc");
}

TEST_F(NSStringContentTest, joins) {
  EXPECT_EQ(text(send<Object, "stringByAppendingString:">(string("a"), string("b"))), "ab");
  EXPECT_EQ(text(sendVariadic<Object, "stringByAppendingFormat:">(string("a"), string("%d"), 5)),
            "a5");
}

TEST_F(NSStringContentTest, mapsCase) {
  EXPECT_EQ(text(send<Object, "uppercaseString">(string("añ1"))), "AÑ1");
  EXPECT_EQ(text(send<Object, "lowercaseString">(string("AÑ1"))), "añ1");
}

using NSStringContentDeathTest = FoundationTest;

TEST_F(NSStringContentDeathTest, stopsBehindTheEnd) {
  EXPECT_DEATH((send<Object, "substringFromIndex:">(string("abc"), 4ul)),
               "substringFromIndex:\\]: Index 4 out of bounds; string length 3");
  EXPECT_DEATH((send<Object, "substringToIndex:">(string("abc"), 4ul)),
               "substringToIndex:\\]: Index 4 out of bounds; string length 3");
  EXPECT_DEATH((send<Object, "substringWithRange:">(string("abc"), NSRange{2, 2})),
               "Range \\{2, 2\\} out of bounds; string length 3");
}

TEST_F(NSStringContentDeathTest, stopsForNil) {
  EXPECT_DEATH((send<Object, "stringByAppendingString:">(string("abc"), nullptr)), "nil argument");
}

}  // namespace
}  // namespace sim
