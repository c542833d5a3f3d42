#include <climits>

#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using objc::Object;
using objc::send;
using NSNumberTest = FoundationTest;

template <objc::FixedString Selector, class Value>
Object make(Value value) {
  return send<Object, Selector>(cls("NSNumber"), value);
}

TEST_F(NSNumberTest, keepsEveryInteger) {
  EXPECT_EQ((send<long, "integerValue">(make<"numberWithInteger:">(LONG_MIN))), LONG_MIN);
  const Object largest = make<"numberWithUnsignedLongLong:">(ULLONG_MAX);
  EXPECT_EQ((send<unsigned long long, "unsignedLongLongValue">(largest)), ULLONG_MAX);
  EXPECT_EQ(description(largest), "18446744073709551615");
  EXPECT_EQ((send<int, "intValue">(make<"numberWithInt:">(-7))), -7);
  EXPECT_EQ((send<short, "shortValue">(make<"numberWithInteger:">(65537L))), 1);
}

TEST_F(NSNumberTest, converts) {
  EXPECT_EQ((send<long, "integerValue">(number(-1.9))), -1);
  EXPECT_EQ((send<double, "doubleValue">(number(3L))), 3.0);
  EXPECT_EQ((send<float, "floatValue">(number(0.5))), 0.5f);
  EXPECT_TRUE((send<bool, "boolValue">(number(0.1))));
  EXPECT_FALSE((send<bool, "boolValue">(number(0L))));
  EXPECT_EQ((send<long, "integerValue">(number(1e300))), LONG_MAX);
  EXPECT_EQ((send<long, "integerValue">(number(true))), 1);
  EXPECT_EQ((send<double, "doubleValue">(make<"numberWithUnsignedLongLong:">(ULLONG_MAX))),
            18446744073709551616.0);
}

TEST_F(NSNumberTest, describesItself) {
  EXPECT_EQ(description(number(true)), "1");
  EXPECT_EQ(description(number(false)), "0");
  EXPECT_EQ(description(number(-5L)), "-5");
  EXPECT_EQ(description(number(0.1)), "0.1");
  EXPECT_EQ(description(number(15.0)), "15");
  EXPECT_EQ(description(make<"numberWithFloat:">(0.1f)), "0.1");
  EXPECT_EQ(text(send<Object, "stringValue">(number(61L))), "61");
}

TEST_F(NSNumberTest, namesItsType) {
  EXPECT_STREQ((send<const char*, "objCType">(number(true))), "c");
  EXPECT_STREQ((send<const char*, "objCType">(number(1L))), "q");
  EXPECT_STREQ((send<const char*, "objCType">(number(1.0))), "d");
  EXPECT_STREQ((send<const char*, "objCType">(make<"numberWithFloat:">(1.0f))), "f");
  EXPECT_STREQ((send<const char*, "objCType">(make<"numberWithInt:">(1))), "i");
}

TEST_F(NSNumberTest, equalsByValue) {
  const Object one = number(1L);
  for (const Object other : {number(1.0), number(true), make<"numberWithInt:">(1)}) {
    EXPECT_TRUE((send<bool, "isEqual:">(one, other)));
    EXPECT_TRUE((send<bool, "isEqualToNumber:">(other, one)));
    EXPECT_EQ((send<unsigned long, "hash">(one)), (send<unsigned long, "hash">(other)));
  }
  EXPECT_FALSE((send<bool, "isEqual:">(one, number(1.5))));
  EXPECT_FALSE((send<bool, "isEqual:">(one, string("1"))));
  EXPECT_FALSE(
      (send<bool, "isEqual:">(number(-1L), make<"numberWithUnsignedLongLong:">(ULLONG_MAX))));
}

TEST_F(NSNumberTest, comparesWithoutLoss) {
  EXPECT_EQ((send<long, "compare:">(number(1L), number(1.5))), -1);
  EXPECT_EQ((send<long, "compare:">(number(LONG_MAX), number(LONG_MAX - 1))), 1);
  EXPECT_EQ((send<long, "compare:">(number(2.0), number(2L))), 0);
}

TEST_F(NSNumberTest, givesItsBytes) {
  double real = 0;
  send<void, "getValue:">(number(2.5), static_cast<void*>(&real));
  EXPECT_EQ(real, 2.5);
  long integer = 0;
  send<void, "getValue:">(number(-3L), static_cast<void*>(&integer));
  EXPECT_EQ(integer, -3);
}

}  // namespace
}  // namespace sim
