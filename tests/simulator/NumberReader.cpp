// Numbers from text.
#include "simulator/machine/NumberReader.h"

#include <gtest/gtest.h>

namespace sim {
namespace {

TEST(NumberReader, TakesTheWholeTextOrNothing) {
  EXPECT_EQ(wholeNumber<long>("-12"), -12);
  EXPECT_EQ(wholeNumber<double>("1.5e3"), 1500.0);
  EXPECT_EQ(wholeNumber<unsigned>("1F", 16), 31u);
  for (const char* text : {"", " 1", "1 ", "+1", "1x", "--1", "x"}) {
    EXPECT_FALSE(wholeNumber<long>(text)) << text;
    EXPECT_FALSE(wholeNumber<double>(text)) << text;
  }
}

TEST(NumberReader, KnowsNoInfinitiesAndNoNaN) {
  for (const char* text : {"inf", "-infinity", "nan", "NaN(1)"})
    EXPECT_FALSE(wholeNumber<double>(text)) << text;
}

TEST(NumberReader, RefusesWhatTheTypeDoesNotHold) {
  EXPECT_FALSE(wholeNumber<int>("2147483648"));
  EXPECT_FALSE(wholeNumber<unsigned>("-1"));
  EXPECT_FALSE(wholeNumber<double>("1e999"));
  EXPECT_TRUE(numberAtStart<int>("2147483648").isOutOfRange);
  EXPECT_EQ(numberAtStart<double>("1e999x").length, 5u);
}

TEST(NumberReader, TakesOneAfterTheOther) {
  std::string_view text = "15.4.1";
  EXPECT_EQ(takeNumber<long>(text), 15);
  EXPECT_EQ(text, ".4.1");
  EXPECT_FALSE(takeNumber<long>(text));
  EXPECT_EQ(text, ".4.1");
  EXPECT_EQ(takeNumber<double>(text), 0.4);
  EXPECT_EQ(text, ".1");
}

}  // namespace
}  // namespace sim
