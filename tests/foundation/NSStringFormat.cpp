#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using objc::Object;
using NSStringFormatTest = FoundationTest;

template <class... Arguments>
std::string formatted(const char* format, Arguments... arguments) {
  return text(objc::sendVariadic<Object, "stringWithFormat:">(cls("NSString"), string(format),
                                                              arguments...));
}

TEST_F(NSStringFormatTest, printsObjects) {
  EXPECT_EQ(formatted("%@ and %@", string("żółw"), number(5L)), "żółw and 5");
  EXPECT_EQ(formatted("%@", Object()), "(null)");
  EXPECT_EQ(formatted("[%6@][%-6@][%.2@]", string("abc"), string("abc"), string("abc")),
            "[   abc][abc   ][ab]");
}

TEST_F(NSStringFormatTest, printsIntegersOfEveryWidth) {
  EXPECT_EQ(formatted("%d %i %ld %lld %qd", -1, 2, -3000000000L, -4LL, 5LL),
            "-1 2 -3000000000 -4 5");
  EXPECT_EQ(formatted("%u %lu %zu", 4000000000u, ~0ul, sizeof(int)),
            "4000000000 18446744073709551615 4");
  EXPECT_EQ(formatted("%hd %hhd %hhu", 65537, 257, -1), "1 1 255");
  EXPECT_EQ(formatted("%x %X %o %#x", 255, 255, 8, 255), "ff FF 10 0xff");
  EXPECT_EQ(formatted("%02ld:%02ld:%02ld", 1L, 2L, 5L), "01:02:05");
  EXPECT_EQ(formatted("[%5d][%-5d][%+d][%05d][%.3d]", 42, 42, 42, 42, 42),
            "[   42][42   ][+42][00042][042]");
  EXPECT_EQ(formatted("%u", -1), "4294967295");
}

TEST_F(NSStringFormatTest, printsReals) {
  EXPECT_EQ(formatted("%f %.2f %g %e", 1.5, 2.345, 0.5, 1500.0), "1.500000 2.35 0.5 1.500000e+03");
  EXPECT_EQ(formatted("%d%f%d%f%d%f", 1, 1.5, 2, 2.5, 3, 3.5), "11.50000022.50000033.500000");
  EXPECT_EQ(formatted("%f %f %f %f %f %f %f %f %f", 1., 2., 3., 4., 5., 6., 7., 8., 9.).size(),
            9 * 8u + 8);
  EXPECT_EQ(formatted("%Lf", 2.5L), "2.500000");
}

TEST_F(NSStringFormatTest, printsCharactersAndCStrings) {
  EXPECT_EQ(formatted("%c%C %s", 'a', 0x017c, "żółw"), "aż żółw");
  EXPECT_EQ(formatted("%.2s|%s", "abc", static_cast<const char*>(nullptr)), "ab|(null)");
  EXPECT_EQ(formatted("%S", u"wide"), "wide");
  EXPECT_EQ(formatted("%C%C", 0xd83d, 0xde00), "😀");
}

TEST_F(NSStringFormatTest, printsPointers) {
  EXPECT_EQ(formatted("%p", reinterpret_cast<void*>(0x1234)), "0x1234");
  EXPECT_EQ(formatted("%p", static_cast<void*>(nullptr)), "0x0");
}

TEST_F(NSStringFormatTest, takesArgumentsByPosition) {
  EXPECT_EQ(formatted("%2$@ %1$d %2$@", 7, string("x")), "x 7 x");
  EXPECT_EQ(formatted("%1$*2$d|", 7, 3), "  7|");
}

TEST_F(NSStringFormatTest, takesWidthsAsArguments) {
  EXPECT_EQ(formatted("[%*d][%-*d][%*d][%.*f]", 4, 1, 4, 2, -4, 3, 1, 2.25),
            "[   1][2   ][3   ][2.2]");
}

TEST_F(NSStringFormatTest, keepsWhatIsNoDirective) {
  EXPECT_EQ(formatted("100%%"), "100%");
  EXPECT_EQ(formatted("100%"), "100%");
  EXPECT_EQ(formatted("50%-5"), "50%-5");
}

TEST_F(NSStringFormatTest, isThereForInitialisersAndMutableStrings) {
  const auto made = objc::adopt(sendVariadic<Object, "initWithFormat:">(
      Object(objc_alloc(cls("NSString"))), string("%d"), 3));
  EXPECT_EQ(text(made), "3");
  const Object changing =
      objc::sendVariadic<Object, "stringWithFormat:">(cls("NSMutableString"), string("%d"), 3);
  sendVariadic<Object, "appendFormat:">(changing, string(" %.1f"), 0.5);
  EXPECT_EQ(text(changing), "3 0.5");
}

}  // namespace
}  // namespace sim
