// POST /api/moment: back to any line, uptime or entry of the journal.
#include <gtest/gtest.h>

#include "tests/serve/ServedProgram.h"

namespace sim {
namespace {

std::string upTo(const std::string& text, const std::string& end) {
  return text.substr(0, text.find(end));
}

double reached(const ServedProgram& program) {
  return program.post("/api/time", json::object()).asJson().at("uptime");
}

json opened(const ServedProgram& program) {
  return program.get("/api/script").asJson();
}

// One that ends by itself, with a fade, after a restart of its host.
void haveANight(const ServedProgram& program) {
  program.command({timerOfOneMinute, "advance 20s", "volume 0.5", "volume 0.75"});
  program.command("respring");
  program.command({"advance 100s", "lock"});
}

json entryOf(const ServedProgram& program, const std::string& text) {
  for (const json& entry : program.get("/api/journal").asJson())
    if (entry.at("text") == text) return entry;
  throw std::runtime_error("no entry " + text);
}

TEST(Moments, AreReachedByTheirUptime) {
  const ServedProgram program;
  haveANight(program);
  const std::string before = program.journal();
  ASSERT_EQ(program.post("/api/moment", {{"uptime", 50}}).status, 200);
  EXPECT_EQ(reached(program), 50.0);
  EXPECT_EQ(program.value("Dozewell2Manager.sharedInstance.getTimerRemainingTime"), "10");
  EXPECT_TRUE(before.starts_with(program.journal()));
  EXPECT_EQ(opened(program).at("end"), 120.0);
  // And on, by the rest of it: it comes to the same.
  EXPECT_EQ(program.post("/api/moment", {{"uptime", 120}}).status, 200);
  EXPECT_EQ(program.journal(), before);
}

TEST(Moments, AreThoseJustBeforeAnEntryOfTheJournal) {
  const ServedProgram program;
  haveANight(program);
  const std::string before = program.journal();
  const auto reach = [&](const std::string& text) {
    ASSERT_EQ(program.post("/api/moment", {{"entry", entryOf(program, text).at("n")}}).status, 200);
    EXPECT_EQ(program.journal().find(text), std::string::npos) << program.journal();
    EXPECT_TRUE(before.starts_with(program.journal()));
  };
  reach("-[SBMediaController pauseForEventSource:0]");
  EXPECT_EQ(program.value("SBMediaController.sharedInstance.suppressHUD"), "YES");
  EXPECT_EQ(opened(program).at("end"), 120.0);
  reach("user volume 0.75");
  EXPECT_EQ(reached(program), 20.0);
  EXPECT_NE(program.journal().find("user volume 0.5"), std::string::npos);
  reach("-[SpringBoard applicationDidFinishLaunching:]");
  EXPECT_EQ(program.command("advance 1s").error(), "advance belongs after boot");
}

TEST(Moments, AreThoseBeforeALineAndWithinOne) {
  const ServedProgram program;
  const json night = {{"name", "a.phone"},
                      {"text", "boot\nadvance 1h\n# so\nexpect-playing YES\nlock\n"}};
  program.post("/api/script", night);
  EXPECT_EQ(program.post("/api/moment", {{"line", 5}}).status, 200);
  EXPECT_EQ(opened(program).at("line"), 5);
  EXPECT_EQ(program.post("/api/moment", {{"uptime", 1000}}).status, 200);
  EXPECT_EQ(opened(program).at("line"), 2);
  EXPECT_EQ(opened(program).at("end"), 3600.0);
  // What is left of the line, and no more.
  program.post("/api/script/step", {{"lines", 1}});
  EXPECT_EQ(reached(program), 3600.0);
}

TEST(Moments, LeadBackAlsoAfterSomethingElseWasDone) {
  const ServedProgram program;
  haveANight(program);
  program.post("/api/moment", {{"uptime", 10}});
  program.command("volume 0.25");
  ASSERT_EQ(
      program.post("/api/moment", {{"entry", entryOf(program, "user volume 0.25").at("n")}}).status,
      200);
  EXPECT_EQ(upTo(program.journal(), "user volume"), program.journal());
  EXPECT_EQ(reached(program), 10.0);
}

TEST(Moments, AreLeftByWhoeverRestartsTheHostThere) {
  const ServedProgram program;
  haveANight(program);
  program.post("/api/moment", {{"uptime", 10}});
  EXPECT_EQ(program.command({"unlock", "respring"}).status, 200);
  EXPECT_EQ(program.value("SBLockScreenManager.sharedInstance.isUILocked"), "YES");
}

const std::vector<std::string> failing = {"--no-music", "--tweak", FAILING_EXTENSION};

TEST(Moments, LieAlsoBehindACrash) {
  const ServedProgram program(failing);
  program.command({"playlist \"A\" 180", "play", "advance 10s"});
  EXPECT_EQ(program.command("send Failing.class readsNowhere").status, 503);
  program.command({"advance 20s", "volume 0.25", "advance 10s"});
  const std::string before = program.journal();
  ASSERT_NE(before.find("crash"), std::string::npos);
  const auto go = [&](json moment) {
    const Answer answer = program.post("/api/moment", std::move(moment));
    EXPECT_EQ(answer.status, 200) << answer.body;
  };
  go({{"uptime", 20}});
  EXPECT_EQ(reached(program), 20.0);
  EXPECT_TRUE(before.starts_with(program.journal())) << program.journal();
  go({{"uptime", 5}});
  // And on past the crash, line by line.
  program.post("/api/script/step", {{"run", true}});
  go({{"uptime", 40}});
  EXPECT_EQ(program.journal(), before);
}

TEST(Moments, RefuseWhatIsNone) {
  const ServedProgram program;
  EXPECT_EQ(program.post("/api/moment", json::object()).error(),
            "expected one of line, uptime and entry");
  EXPECT_EQ(program.post("/api/moment", {{"entry", 1.5}}).error(),
            "expected entry to be a whole number");
  EXPECT_EQ(program.post("/api/moment", {{"line", 2}}).error(), "no script is open");
}

}  // namespace
}  // namespace sim
