// Scripts that a page opens: on a phone of their own, line by line.
#include <gtest/gtest.h>

#include "tests/serve/EventReader.h"
#include "tests/serve/ServedProgram.h"

namespace sim {
namespace {

constexpr const char* night =
    "# A short night\n"
    "ios 16.0\n"
    "boot\n"
    "\n"
    "playlist \"A\" 180\n"
    "advance 10s\n"
    "respring\n"
    "expect-playing YES\n";

json open(const ServedProgram& program, const std::string& text) {
  return program.post("/api/script", {{"name", "night.phone"}, {"text", text}}).asJson();
}

json script(const ServedProgram& program) {
  return program.get("/api/script").asJson();
}

TEST(OpenScripts, ArePlayedLineByLine) {
  const ServedProgram program;
  EXPECT_TRUE(script(program).is_null());
  EXPECT_EQ(open(program, night).at("restarts"), true);
  EXPECT_EQ(script(program), (json{{"name", "night.phone"},
                                   {"text", night},
                                   {"line", 1},
                                   {"state", "ready"},
                                   {"end", 0.0},
                                   {"error", nullptr}}));
  EXPECT_EQ(program.post("/api/script/step", {{"lines", 1}}).asJson().at("line"), 3);
  EXPECT_EQ(program.post("/api/script/step", {{"lines", 2}}).asJson().at("line"), 6);
  EXPECT_EQ(program.value("UIDevice.currentDevice.systemVersion"), "\"16.0\"");
  program.post("/api/script/step", {{"lines", 2}});
  EXPECT_EQ(script(program).at("line"), 8);
  const json last = program.post("/api/script/step", {{"lines", 5}}).asJson();
  EXPECT_EQ(last.at("state"), "finished");
  EXPECT_EQ(program.post("/api/script/step", {{"lines", 1}}).status, 409);
}

TEST(OpenScripts, RunOnToTheirEnd) {
  const ServedProgram program;
  open(program, night);
  program.post("/api/script/step", {{"run", true}});
  EventReader page(program);
  // A host that has restarted begins with a snapshot, which may tell of the end already.
  page.next("", [](const json& data) {
    const json& part = data.is_object() && data.contains("script") ? data.at("script") : data;
    return part.is_object() && part.contains("state") && part.at("state") == "finished";
  });
  EXPECT_EQ(program.post("/api/time", json::object()).asJson().at("uptime"), 10.0);
}

TEST(OpenScripts, StopWhereAnExpectationFails) {
  const ServedProgram program;
  open(program, "boot\nexpect-playing YES\nlock\n");
  const json failed = program.post("/api/script/step", {{"lines", 3}}).asJson();
  EXPECT_EQ(failed.at("state"), "failed");
  EXPECT_EQ(failed.at("line"), 2);
  EXPECT_EQ(failed.at("error"),
            (json{{"line", 2}, {"column", 1}, {"error", "playing: expected YES, found NO"}}));
}

TEST(OpenScripts, GoOnBehindALineThatFailed) {
  const ServedProgram program;
  open(program, "boot\nexpect-playing YES\nlock\nexpect-playing YES\n");
  program.post("/api/script/step", {{"lines", 2}});
  EXPECT_EQ(program.post("/api/script/step", {{"lines", 1}}).asJson().at("line"), 4);
  EXPECT_EQ(program.post("/api/script/step", {{"lines", 1}}).asJson().at("state"), "failed");
  EXPECT_NE(program.journal().find("user lock"), std::string::npos);
}

TEST(OpenScripts, HaveTimeStandStillBetweenTheirLines) {
  const ServedProgram program;
  program.post("/api/time", {{"paused", false}, {"speed", 3600}});
  open(program, "boot\nadvance-to 5\nadvance-to 6\n");
  EXPECT_EQ(program.post("/api/time", json::object()).asJson().at("paused"), true);
  program.post("/api/script/step", {{"lines", 2}});
  EXPECT_EQ(program.post("/api/script/step", {{"lines", 1}}).asJson().at("state"), "finished");
  EXPECT_EQ(program.post("/api/time", json::object()).asJson().at("uptime"), 6.0);
}

TEST(OpenScripts, AreReadBeforeThePhoneIsGivenUp) {
  const ServedProgram program;
  program.command("advance 5s");
  const json wrong = open(program, "boot\nbot\n");
  EXPECT_EQ(wrong, (json{{"error", "expected a command, found bot"}, {"line", 2}, {"column", 1}}));
  EXPECT_EQ(program.post("/api/script/step", {{"lines", 1}}).error(), "no script is open");
  EXPECT_EQ(program.post("/api/time", json::object()).asJson().at("uptime"), 5.0);
}

TEST(OpenScripts, ComeFromTheCommandLine) {
  const TestFolder folder;
  const ServedProgram program({"--script", folder.write("night.phone", night)});
  EXPECT_EQ(script(program).at("name"), "night.phone");
  EXPECT_EQ(program.post("/api/time", {{"advance", 1}}).error(), "time passes only after boot");
  const auto closed = program.client().Delete("/api/script");
  ASSERT_TRUE(closed);
  EXPECT_TRUE(script(program).is_null());
  EXPECT_EQ(program.command("boot").status, 200);
}

}  // namespace
}  // namespace sim
