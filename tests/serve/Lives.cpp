// Whatever becomes of the host, the pages are told, and can do something about it.
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <thread>

#include "tests/serve/EventReader.h"
#include "tests/serve/ServedProgram.h"

namespace sim {
namespace {

using std::chrono::steady_clock;

const std::vector<std::string> failing = {"--no-music", "--tweak", FAILING_EXTENSION};

auto isIn(const std::string& state) {
  return [state](const json& life) { return life.at("state") == state; };
}

bool hasReport(const json& life) {
  return !life.at("report").is_null();
}

Answer help(const ServedProgram& program, const std::string& what) {
  return program.post("/api/life", {{"do", what}});
}

bool isHooked(const ServedProgram& program) {
  return program.command("get Failing.class").status == 200;
}

TEST(Lives, GoOnAfterACrash) {
  const ServedProgram program(failing);
  EventReader page(program);
  EXPECT_TRUE(page.next("snapshot").data.at("life").at("report").is_null());
  program.command({"playlist \"A\" 180", "volume 0.25", "advance 12500ms"});
  const Answer answer = program.command("send Failing.class readsNowhere");
  EXPECT_EQ(answer.status, 503);
  EXPECT_EQ(answer.error(),
            "the host crashed: Segmentation fault at 0x0 in +[Failing readsNowhere]");
  const json report = page.next("life", hasReport).data.at("report");
  EXPECT_EQ(report.at("what"), "Segmentation fault at 0x0");
  EXPECT_EQ(report.at("where"), "+[Failing readsNowhere]");
  EXPECT_EQ(report.at("uptime"), 12.5);
  EXPECT_EQ(report.at("ran"), 12.5);
  EXPECT_GT(report.at("stack").size(), 3u);
  EXPECT_GT(report.at("journal").size(), 0u);
  const json all = page.next("snapshot").data;
  EXPECT_EQ(all.at("phone").at("host"), "running");
  EXPECT_EQ(all.at("player").at("title"), "A");
  EXPECT_EQ(all.at("player").at("position"), 12.5);
  EXPECT_EQ(all.at("player").at("volume"), 0.25);
  EXPECT_NE(program.journal().find("    12.500  the host crashed: Segmentation fault"),
            std::string::npos);
  EXPECT_FALSE(all.at("life").at("safeMode").get<bool>());
  EXPECT_TRUE(isHooked(program));
  EXPECT_TRUE(help(program, "forget").asJson().at("report").is_null());
}

TEST(Lives, EndInSafeModeUntilSomebodyTriesAgain) {
  const ServedProgram program(failing);
  EventReader page(program);
  program.command("send Failing.class aborts");
  EXPECT_EQ(program.command("send Failing.class exits").status, 503);
  page.next("life", [](const json& life) { return life.at("safeMode") == true; });
  EXPECT_FALSE(isHooked(program));
  EXPECT_EQ(program.command("lock").status, 200);
  program.command("respring");
  page.next("life", [](const json& life) { return life.at("safeMode") == false; });
  EXPECT_TRUE(isHooked(program));
}

TEST(Lives, GoOnWhenSomebodyElseKillsTheHost) {
  const ServedProgram program(failing);
  program.command("advance 5s");
  EventReader page(program);
  page.next("snapshot");
  kill(program.hostProcess(), SIGKILL);
  EXPECT_EQ(page.next("life", hasReport).data.at("report").at("what"), "Killed");
  EXPECT_EQ(page.next("snapshot").data.at("clock").at("uptime"), 5.0);
}

TEST(Lives, AreShownAsHangingAndCanBeEnded) {
  const ServedProgram program(failing);
  EventReader page(program);
  page.next("snapshot");
  std::thread asker(
      [&program] { EXPECT_EQ(program.command("send Failing.class hangs").status, 503); });
  const json life = page.next("life", isIn("hanging")).data;
  EXPECT_EQ(life.at("doing"), "send Failing.class hangs");
  // Who comes now is told, too, and everything that needs no host is answered.
  EXPECT_EQ(EventReader(program).next("snapshot").data.at("life").at("state"), "hanging");
  EXPECT_EQ(program.get("/api/journal").status, 200);
  const Answer sample = help(program, "sample");
  EXPECT_EQ(sample.status, 200);
  EXPECT_NE(sample.body.find("+[Failing hangs]"), std::string::npos) << sample.body;
  EXPECT_EQ(help(program, "kill").status, 200);
  asker.join();
  EXPECT_EQ(page.next("life", hasReport).data.at("report").at("what"),
            "it did not answer, and was killed");
  EXPECT_EQ(program.command("lock").status, 200);
}

TEST(Lives, EndWithTheProgramAtOnceWhateverTheyDo) {
  ServedProgram program(failing);
  std::thread asker([&program] { program.command("send Failing.class hangs"); });
  usleep(500'000);
  const auto start = steady_clock::now();
  EXPECT_EQ(program.end(SIGTERM), 0);
  EXPECT_LT(steady_clock::now() - start, std::chrono::seconds(1));
  asker.join();
}

struct LongCommand {
  const char* name;
  std::vector<std::string> before;
  const char* line;
};
void PrintTo(const LongCommand& each, std::ostream* out) {
  *out << each.name;
}
class LongCommands : public testing::TestWithParam<LongCommand> {};

TEST_P(LongCommands, AreStopped) {
  const ServedProgram program({"--no-music", "--no-tweak"});
  EventReader page(program);
  page.next("snapshot");
  program.command(GetParam().before);
  std::string error;
  std::thread asker([&program, &error] { error = program.command(GetParam().line).error(); });
  const json life = page.next("life", isIn("busy")).data;
  EXPECT_EQ(life.at("doing"), GetParam().line);
  EXPECT_EQ(help(program, "interrupt").status, 200);
  asker.join();
  EXPECT_EQ(error.rfind("interrupted at ", 0), 0u) << error;
  EXPECT_EQ(program.command("wall-clock +1s").status, 200);
  EXPECT_LT(program.residentKilobytes(), 300'000);
  const std::string recording = program.get("/api/recording.phone").body;
  EXPECT_EQ(recording.find(GetParam().line), std::string::npos) << recording;
  EXPECT_NE(recording.find("advance-to "), std::string::npos) << recording;
}

INSTANTIATE_TEST_SUITE_P(
    , LongCommands,
    testing::Values(
        LongCommand{"Repeat", {"lock"}, "repeat 1000000000 volume 0.5 then volume 0.25"},
        LongCommand{"Advance", {"playlist \"A\" 0.000000001", "repeat-all YES"}, "advance 800000h"},
        LongCommand{"Respring",
                    {"playlist \"A\" 0.000000001", "repeat-all YES", "kill"},
                    "respring after 800000h"}),
    [](const auto& each) { return each.param.name; });

TEST(Commands, MayNotPrintWithoutEnd) {
  const ServedProgram program({"--no-music", "--no-tweak"});
  // Much at once: with sanitizers a hundred thousand short lines take longer than an answer may.
  EXPECT_EQ(program.command("let text NSString stringWithString: \"" + std::string(1000, 'a') + '"')
                .status,
            200);
  EXPECT_EQ(program.command("repeat 1000000000 get $text").error(),
            "expected to print at most 4194304 bytes");
}

}  // namespace
}  // namespace sim
