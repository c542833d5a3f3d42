#include <gtest/gtest.h>

#include "simulator/script/Command.h"
#include "simulator/script/words/Script.h"

namespace sim {
namespace {

Arguments words(std::string_view line) {
  ScriptLine parsed = parseScriptLine(line, 1);
  return {parsed.words, parsed.endColumn};
}

template <class Read>
std::string failure(std::string_view line, Read read) {
  Arguments arguments = words(line);
  try {
    read(arguments);
    return "none";
  } catch (const ScriptError& error) {
    return std::to_string(error.column) + ": " + error.what();
  }
}

TEST(Arguments, ReadTheirKinds) {
  Arguments arguments = words("name 0.5 -3 YES NO keyword \"text\"");
  EXPECT_EQ(arguments.text("a name"), "name");
  EXPECT_EQ(arguments.number("a number"), 0.5);
  EXPECT_EQ(arguments.integer("an integer"), -3);
  EXPECT_TRUE(arguments.yesOrNo("an answer"));
  EXPECT_FALSE(arguments.yesOrNo("an answer"));
  EXPECT_FALSE(arguments.takeKeyword("other"));
  EXPECT_TRUE(arguments.takeKeyword("keyword"));
  EXPECT_FALSE(arguments.takeKeyword("text")) << "a quoted word is no keyword";
  EXPECT_EQ(arguments.text("text"), "text");
  EXPECT_TRUE(arguments.atEnd());
  arguments.finish();
}

TEST(Arguments, TakeOneOfTwoWords) {
  const auto choice = [](Arguments& arguments) { arguments.takeEither("on", "off"); };
  Arguments arguments = words("on off on");
  EXPECT_TRUE(arguments.takeEither("on", "off"));
  EXPECT_FALSE(arguments.takeEither("on", "off"));
  EXPECT_EQ(failure("dim", choice), "1: expected on or off");
  EXPECT_EQ(failure("\"on\"", choice), "1: expected on or off");
}

TEST(Arguments, ReadDurations) {
  Arguments arguments = words("250ms 10s 5m 8h 0.5s 0s");
  for (const double expected : {0.25, 10.0, 300.0, 28800.0, 0.5, 0.0})
    EXPECT_EQ(arguments.duration("a duration"), nanoseconds(expected));
}

TEST(Arguments, NameWhatWasExpectedAndFound) {
  const auto number = [](Arguments& arguments) { arguments.number("a level"); };
  EXPECT_EQ(failure("x", number), "1: expected a level, found x");
  EXPECT_EQ(failure(" \"1\"", number), "2: expected a level, found \"1\"");
  EXPECT_EQ(failure("1x", number), "1: expected a level, found 1x");
  EXPECT_EQ(failure("inf", number), "1: expected a level, found inf");
  EXPECT_EQ(failure("nan", number), "1: expected a level, found nan");
  EXPECT_EQ(failure("", number), "1: expected a level");
  const auto integer = [](Arguments& arguments) { arguments.integer("a count"); };
  EXPECT_EQ(failure("1.5", integer), "1: expected a count, found 1.5");
  EXPECT_EQ(failure("9223372036854775808", integer),
            "1: expected a count, found 9223372036854775808");
  const auto answer = [](Arguments& arguments) { arguments.yesOrNo("an answer"); };
  EXPECT_EQ(failure("yes", answer), "1: expected an answer (YES or NO), found yes");
  const auto finish = [](Arguments& arguments) { arguments.finish(); };
  EXPECT_EQ(failure("  more", finish), "3: nothing may follow here, found more");
}

TEST(Arguments, RejectOtherDurations) {
  const auto duration = [](Arguments& arguments) { arguments.duration("a duration"); };
  for (const std::string word : {"10", "-1s", "s", "1 s", "1d", "\"1s\"", "1e400s"})
    EXPECT_NE(failure(word, duration).find("such as 250ms, 10s, 5m or 8h"), std::string::npos)
        << word;
}

TEST(CommandTable, TakesANameOnce) {
  CommandTable table;
  table.add({"boot", Stage::setup, "boot", "boot", "Boots.", [](Arguments&) {}});
  EXPECT_NE(table.find("boot"), nullptr);
  EXPECT_EQ(table.find("other"), nullptr);
  EXPECT_THROW(table.add({"boot", Stage::any, "", "", "", [](Arguments&) {}}), std::logic_error);
}

}  // namespace
}  // namespace sim
