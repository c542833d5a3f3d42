// POST /api/command: the phone script language, one line at a time.
#include <gtest/gtest.h>

#include "tests/serve/ServedProgram.h"

namespace sim {
namespace {

TEST(Commands, TakeEffectAndSayWhatTheyPrint) {
  const ServedProgram program;
  EXPECT_EQ(program.command("volume 0.25").asJson(),
            (json{{"ok", true}, {"uptime", 0.0}, {"output", ""}}));
  EXPECT_EQ(program.command("get UIDevice.currentDevice.systemVersion").asJson().at("output"),
            "\"15.4\"\n");
  EXPECT_NE(program.journal().find("user volume 0.25"), std::string::npos);
}

TEST(Commands, JumpInTime) {
  const ServedProgram program;
  EXPECT_EQ(program.command("advance 90s").asJson().at("uptime"), 90.0);
  EXPECT_EQ(program.command("advance-to 100.5").asJson().at("uptime"), 100.5);
}

TEST(Commands, AreRefusedWithTheWordsOfAScript) {
  const ServedProgram program;
  const Answer answer = program.command({"volume 0.25", "volume 0.5", "  volume loud"});
  EXPECT_EQ(answer.status, 400);
  EXPECT_EQ(answer.asJson(), (json{{"error", "expected a volume from 0 to 1, found loud"},
                                   {"line", 3},
                                   {"column", 10},
                                   {"ran", 2}}));
  EXPECT_NE(program.journal().find("user volume 0.5"), std::string::npos);
}

struct Mistake {
  const char* name;
  const char* line;
  const char* error;
};
class WrongCommands : public testing::TestWithParam<Mistake> {};

TEST_P(WrongCommands, AreRefused) {
  const ServedProgram program;
  const Answer answer = program.command(GetParam().line);
  EXPECT_EQ(answer.status, 400);
  EXPECT_EQ(answer.error(), GetParam().error);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, WrongCommands,
    testing::Values(Mistake{"Unknown", "bot", "expected a command, found bot"},
                    Mistake{"TooLate", "ios 16.0", "ios belongs before boot"},
                    Mistake{"NoFinger", "touch moved 1 2", "no finger is on the screen"},
                    Mistake{"Expectation", "expect-volume 1", "volume: expected 1, found 0.5"},
                    Mistake{"Setting", "set enabledMode 2",
                            "no extension reads the setting enabledMode of com.corvane.dozewell2; "
                            "did you mean \"enabledModes\"?"},
                    Mistake{"JournalLine", "expect-no-journal \"-[SBMediaController puase]\"",
                            "there is no method -[SBMediaController puase]; did you mean "
                            "\"pause\"?"},
                    Mistake{"TwoLines", "lock\nunlock",
                            "expected a line without line breaks: use lines"},
                    Mistake{"OpenQuote", "log \"a", "expected a closing quote"}),
    [](const auto& each) { return each.param.name; });

struct Body {
  const char* name;
  const char* text;
  const char* error;
};
class WrongBodies : public testing::TestWithParam<Body> {};

TEST_P(WrongBodies, AreRefused) {
  const ServedProgram program;
  const auto answer = program.client().Post("/api/command", GetParam().text, "application/json");
  ASSERT_TRUE(answer);
  EXPECT_EQ(answer->status, 400);
  EXPECT_EQ(json::parse(answer->body).at("error"), GetParam().error);
}

INSTANTIATE_TEST_SUITE_P(
    Bodies, WrongBodies,
    testing::Values(Body{"NoJson", "{\"line\"", "expected a JSON object"},
                    Body{"NoObject", "[1]", "expected a JSON object"},
                    Body{"Empty", "{}", "expected either line or lines"},
                    Body{"Both", R"({"line":"lock","lines":[]})", "expected either line or lines"},
                    Body{"Number", R"({"line":1})", "expected line to be text"},
                    Body{"NumberInLines", R"({"lines":[1]})",
                         "expected lines to hold lines of text"},
                    Body{"Unknown", R"({"line":"lock","x":1})",
                         "expected no members but line, lines, found x"}),
    [](const auto& each) { return each.param.name; });

TEST(Commands, AreListed) {
  const ServedProgram program;
  const json all = program.get("/api/commands").asJson();
  const auto found = std::find_if(all.begin(), all.end(),
                                  [](const json& each) { return each.at("name") == "advance"; });
  ASSERT_NE(found, all.end());
  EXPECT_EQ(found->at("usage"), "advance DURATION");
  EXPECT_EQ(found->at("stage"), "booted");
}

}  // namespace
}  // namespace sim
