// POST /api/time: the phone's time goes as pages want it.
#include <gtest/gtest.h>

#include "tests/serve/EventReader.h"
#include "tests/serve/ServedProgram.h"

namespace sim {
namespace {

double uptime(const ServedProgram& program) {
  return program.post("/api/time", json::object()).asJson().at("uptime");
}

TEST(Timing, StandsStillWhilePaused) {
  const ServedProgram program;
  program.command({"set volumeFadeOutEnabled NO", timerOfOneMinute});
  EXPECT_EQ(uptime(program), 0);
  EXPECT_EQ(program.post("/api/time", {{"advance", 59.5}}).asJson().at("uptime"), 59.5);
  EXPECT_EQ(program.journal().find("-[SBMediaController pauseForEventSource:0]"),
            std::string::npos);
  EXPECT_EQ(program.post("/api/time", {{"to", 60}}).asJson().at("uptime"), 60.0);
  EXPECT_NE(program.journal().find("    60.000  -[SBMediaController pauseForEventSource:0]"),
            std::string::npos);
}

TEST(Timing, GoesByItself) {
  const ServedProgram program;
  EventReader page(program);
  page.next("snapshot");
  program.command({"set volumeFadeOutEnabled NO", timerOfOneMinute});
  program.post("/api/time", {{"speed", 3600}, {"paused", false}});
  const auto hasPaused = [](const json& journal) {
    for (const json& entry : journal.at("entries")) {
      if (entry.at("text") == "-[SBMediaController pauseForEventSource:0]")
        return entry.at("time") == 60.0;
    }
    return false;
  };
  page.next("journal", hasPaused);
  const json clock = program.post("/api/time", {{"paused", true}}).asJson();
  EXPECT_GE(clock.at("uptime"), 60.0);
  EXPECT_EQ(clock.at("speed"), 3600.0);
}

TEST(Timing, StepsToWhatIsDueNext) {
  const ServedProgram program({"--no-tweak"});
  // The lock screen's player shows the time, second by second.
  EXPECT_EQ(program.post("/api/time", {{"step", true}}).asJson().at("uptime"), 1.0);
  program.command("unlock");
  EXPECT_EQ(program.post("/api/time", {{"step", true}}).asJson().at("uptime"), 45.0);
  program.command({"repeat-all NO", "playlist \"A\" 10.25 \"B\" 20"});
  EXPECT_EQ(program.post("/api/time", {{"step", true}}).asJson().at("uptime"), 55.25);
  EXPECT_EQ(program.post("/api/time", {{"step", true}}).asJson().at("uptime"), 75.25);
  // Without music the lock screen's date is what changes next.
  EXPECT_EQ(program.post("/api/time", {{"step", true}}).asJson().at("uptime"), 2.0 * 3600);
}

TEST(Timing, HasNoNextStepWhenNothingIsDue) {
  const TestFolder folder;
  const ServedProgram program({"--no-tweak", "--script", folder.write("boot.phone", "boot\n")});
  program.post("/api/script/step", {{"lines", 1}});
  const Answer answer = program.post("/api/time", {{"step", true}});
  EXPECT_EQ(answer.status, 409);
  EXPECT_EQ(answer.error(), "nothing is due");
}

TEST(Timing, IsOnTheLockScreenFromTheFirstTimeOn) {
  const ServedProgram program;
  program.command({timerOfOneMinute, "advance 20s", "lock"});
  EXPECT_EQ(program.command("expect-lock-screen-timer 40 within 0.001").status, 200);
}

TEST(Timing, JumpsToShortlyBeforeTheTimersEnd) {
  const ServedProgram program;
  EXPECT_EQ(program.post("/api/time", {{"beforeEnd", 10}}).error(),
            "no timer runs that ends at a certain time");
  program.command(timerOfOneMinute);
  EXPECT_EQ(program.post("/api/time", {{"beforeEnd", 10}}).asJson().at("uptime"), 50.0);
  EXPECT_EQ(program.value("Dozewell2Manager.sharedInstance.getTimerRemainingTime"), "10");
  EXPECT_EQ(program.post("/api/time", {{"beforeEnd", 30}}).asJson().at("uptime"), 50.0);
}

TEST(Timing, RefusesWhatCannotBe) {
  const ServedProgram program;
  const auto error = [&program](const json& wish) {
    const Answer answer = program.post("/api/time", wish);
    EXPECT_EQ(answer.status, 400) << wish;
    return answer.error();
  };
  EXPECT_EQ(error({{"speed", 0.5}}), "expected speed to be a number from 1 to 3600");
  EXPECT_EQ(error({{"speed", "fast"}}), "expected speed to be a number from 1 to 3600");
  EXPECT_EQ(error({{"paused", 1}}), "expected paused to be true or false");
  EXPECT_EQ(error({{"step", true}, {"advance", 1}}),
            "expected one of step, advance, to and beforeEnd");
  program.command("advance 5s");
  const Answer answer = program.post("/api/time", {{"to", 4}, {"speed", 60}});
  EXPECT_EQ(answer.status, 409);
  EXPECT_EQ(answer.error(), "time only moves forward: it is 5 already");
  EXPECT_EQ(program.post("/api/time", json::object()).asJson().at("speed"), 1.0);
}

}  // namespace
}  // namespace sim
