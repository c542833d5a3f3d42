// What a place that sends remembers of the classes it has compared.
#include <gtest/gtest.h>

#include "objc/Check.h"

namespace {

// Never looked at: only addresses count.
Class classNumber(std::uintptr_t number) {
  return reinterpret_cast<Class>(0x1000 * number);
}

struct CheckedClassesTest : testing::Test {
  static inline objc::CheckedClasses checked;
  static void add(std::uintptr_t first, std::uintptr_t last) {
    for (std::uintptr_t number = first; number <= last; ++number) checked.add(classNumber(number));
  }
};

TEST_F(CheckedClassesTest, AreNoneAtFirst) {
  EXPECT_FALSE(checked.contains(classNumber(1)));
}

TEST_F(CheckedClassesTest, AreEightAtOnce) {
  add(1, 8);
  for (std::uintptr_t number = 1; number <= 8; ++number)
    EXPECT_TRUE(checked.contains(classNumber(number))) << number;
  EXPECT_FALSE(checked.contains(classNumber(9)));
}

TEST_F(CheckedClassesTest, ForgetTheOldestForANewOne) {
  add(1, 9);
  EXPECT_FALSE(checked.contains(classNumber(1)));
  for (std::uintptr_t number = 2; number <= 9; ++number)
    EXPECT_TRUE(checked.contains(classNumber(number))) << number;
}

}  // namespace
