#include <gtest/gtest.h>

#include "simulator/foundation/StringsTable.h"

namespace sim {
namespace {

std::string value(std::string_view table, std::string_view key) {
  const auto parsed = parseStrings(table);
  if (!parsed) return "(malformed)";
  const auto found = parsed->find(key);
  return found == parsed->end() ? "(missing)" : found->second;
}

TEST(StringsTablesTest, haveKeysAndValues) {
  EXPECT_EQ(value("\"a\" = \"b\"; \"c\"=\"d\";", "c"), "d");
  EXPECT_EQ(value("bare_key = bare-value;", "bare_key"), "bare-value");
  EXPECT_EQ(value("\"same\";", "same"), "same");
  EXPECT_EQ(value("'single' = 'quotes';", "single"), "quotes");
  EXPECT_EQ(value("", "a"), "(missing)");
}

TEST(StringsTablesTest, haveComments) {
  EXPECT_EQ(value("/* one \"a\" */ // two\n\"a\" /* three */ = \"b\" // four\n;", "a"), "b");
  EXPECT_EQ(value("/* open", "a"), "(malformed)");
}

TEST(StringsTablesTest, haveEscapes) {
  EXPECT_EQ(value(R"("a" = "x\n\t\"\\\U00e9\101";)", "a"), "x\n\t\"\\éA");
  EXPECT_EQ(value(R"("a" = "\Ud83d\Ude00";)", "a"), "😀");
}

TEST(StringsTablesTest, areUtf8OrUtf16) {
  EXPECT_EQ(value("\xef\xbb\xbf\"a\" = \"ż\";", "a"), "ż");
  std::string little = "\xff\xfe", big = "\xfe\xff";
  for (const char letter : std::string_view("\"a\"=\"b\";")) {
    little += letter, little += '\0';
    big += '\0', big += letter;
  }
  EXPECT_EQ(value(little, "a"), "b");
  EXPECT_EQ(value(big, "a"), "b");
  EXPECT_EQ(value("\"a\" = \"\xff\";", "a"), "(malformed)");
}

TEST(StringsTablesTest, areRefusedAsAWholeForOneMistake) {
  for (const char* wrong :
       {"\"a\" = \"b\"", "\"a\" = \"b; \"c\" = \"d\";", "\"a\" \"b\";", "= \"b\";", "\"a\" = ;",
        "\"a\" = \"\\", ";", "\"good\" = \"1\"; \"bad\" = \"2\""})
    EXPECT_FALSE(parseStrings(wrong)) << wrong;
}

}  // namespace
}  // namespace sim
