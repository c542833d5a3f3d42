#include <climits>
#include <cmath>

#include "tests/foundation/FoundationTest.h"

namespace sim {
namespace {

using objc::send;
using NSStringNumbersTest = FoundationTest;

long integer(const char* text) {
  return send<long, "integerValue">(string(text));
}
double real(const char* text) {
  return send<double, "doubleValue">(string(text));
}
bool boolean(const char* text) {
  return send<bool, "boolValue">(string(text));
}

TEST_F(NSStringNumbersTest, readsTheDigitsAtTheBeginning) {
  EXPECT_EQ(integer("42"), 42);
  EXPECT_EQ(integer(" \t-7 songs"), -7);
  EXPECT_EQ(integer("+5"), 5);
  EXPECT_EQ(integer("3.9"), 3);
  EXPECT_EQ(integer("songs 3"), 0);
  EXPECT_EQ(integer("+-5"), 0);
  EXPECT_EQ(integer("0x10"), 0);
  EXPECT_EQ(integer(""), 0);
}

TEST_F(NSStringNumbersTest, staysWithinTheType) {
  EXPECT_EQ(integer("99999999999999999999"), LONG_MAX);
  EXPECT_EQ(integer("-99999999999999999999"), LONG_MIN);
  EXPECT_EQ((send<int, "intValue">(string("99999999999"))), INT_MAX);
  EXPECT_EQ((send<int, "intValue">(string("-99999999999"))), INT_MIN);
  EXPECT_EQ((send<long long, "longLongValue">(string("-5"))), -5);
}

TEST_F(NSStringNumbersTest, readsReals) {
  EXPECT_EQ(real("15.4"), 15.4);
  EXPECT_EQ(real("  -.5e1x"), -5);
  EXPECT_EQ(real("+2"), 2);
  EXPECT_EQ(real("inf"), 0);
  EXPECT_EQ(real("nan"), 0);
  EXPECT_EQ(real("0x10"), 0);
  EXPECT_EQ(real("1e999"), HUGE_VAL);
  EXPECT_EQ(real("1e-999"), 0);
  EXPECT_EQ((send<float, "floatValue">(string("12.5.1"))), 12.5f);
}

TEST_F(NSStringNumbersTest, readsBooleans) {
  for (const char* yes : {"YES", "yes", "true", "T", "1", "007", "-1", "  y"})
    EXPECT_TRUE(boolean(yes)) << yes;
  for (const char* no : {"NO", "false", "0", "000", "", "x1", "- 1"})
    EXPECT_FALSE(boolean(no)) << no;
}

}  // namespace
}  // namespace sim
