// What is done by hand is a script: played headless, it has the same journal.
#include <gtest/gtest.h>

#include <regex>

#include "tests/serve/EventReader.h"
#include "tests/serve/ServedProgram.h"

namespace sim {
namespace {

// Descriptions of objects that are logged have them: another process, other addresses.
std::string withoutAddresses(const std::string& journal) {
  return std::regex_replace(journal, std::regex("0x[0-9a-f]+"), "0x");
}

TEST(Recordings, HoldWhatWasDoneAndWhen) {
  const ServedProgram program;
  program.command({"playlist \"A\" 180", "advance 10s", "volume 0.25"});
  program.command("volume loud");
  program.value("UIDevice.currentDevice.systemVersion");
  program.post("/api/time", {{"advance", 0.5}});
  program.command("next-track");
  EXPECT_EQ(program.get("/api/recording.phone").body,
            "boot\nlock\nunlock\nplaylist \"A\" 180\nadvance 10s\nvolume 0.25\nadvance-to "
            "10.5\nnext-track\n");
}

TEST(Recordings, PlayHeadlessWithTheSameJournal) {
  const ServedProgram program;
  program.command({"playlist \"A\" 30 \"B\" 47.25", "set letTheSongFinishEnabled NO"});
  program.post("/api/time", {{"advance", 0.123456789}});
  program.command("send Dozewell2Manager.sharedInstance startTimerWithMode:andValue: 0 60");
  program.post("/api/time", {{"step", true}});
  program.command({"touch began 100 200", "touch moved 120 210"});
  program.command({"touch ended 120 210", "volume 0.8", "lock"});
  program.post("/api/time", {{"beforeEnd", 10}});
  program.command("respring");
  program.post("/api/time", {{"speed", 3600}, {"paused", false}});
  EventReader page(program);
  const auto hasEnded = [](const json& journal) {
    for (const json& entry : journal.at("entries")) {
      if (entry.at("text") == "-[SBVolumeControl setVolume:0.8 forCategory:\"Audio/Video\"]")
        return true;
    }
    return false;
  };
  const json all = page.next("snapshot").data;
  if (!hasEnded({{"entries", all.at("journal")}})) page.next("journal", hasEnded);
  program.post("/api/time", {{"paused", true}, {"speed", 1}});
  program.command("kill");
  program.post("/api/time", {{"advance", 5}});
  program.command({"volume 0.1", "respring", "unlock"});
  const std::string journal = program.journal();
  EXPECT_NE(journal.find("-[SBMediaController pause]"), std::string::npos);
  const std::string again = playHeadless(program.get("/api/recording.phone").body);
  EXPECT_EQ(withoutAddresses(again), withoutAddresses(journal));
}

// The haptic of the extension's icon buttons is an action's.
TEST(Recordings, HoldTapsOfAPageAndOfAScriptAlike) {
  const ServedProgram program;
  program.command({"let b ButtonWithIncreasedTouchArea alloc",
                   "send $b initWithFrame: {{100, 200}, {40, 40}}",
                   "send UIApplication.sharedApplication.keyWindow addSubview: $b",
                   "send $b addTarget:action:forControlEvents: $b selector setNeedsLayout 64"});
  program.command({"touch began 110.5 210.5", "touch ended 110.5 210.5"});
  program.command("tap $b at {10.5, 10.5}");
  program.command("send $b setEnabled: NO");
  EXPECT_EQ(program.command("tap $b").status, 400);
  EXPECT_EQ(program.command({"touch began 110 210", "touch ended 110 210"}).status, 200);
  const std::string journal = program.journal();
  EXPECT_NE(journal.find("user touch ButtonWithIncreasedTouchArea\n     0.000  haptic impact style "
                         "0\n     0.000  user tap ButtonWithIncreasedTouchArea\n     0.000  haptic "
                         "impact style 0\n     0.000  user touch ButtonWithIncreasedTouchArea\n"),
            std::string::npos)
      << journal;
  const std::string recording = program.get("/api/recording.phone").body;
  EXPECT_NE(recording.find("touch ended 110.5 210.5\ntap $b at {10.5, 10.5}\nsend $b setEnabled: "
                           "NO\ntouch began 110 210\ntouch ended 110 210\n"),
            std::string::npos)
      << recording;
  EXPECT_EQ(withoutAddresses(playHeadless(recording)), withoutAddresses(journal));
}

TEST(Recordings, BeginWithTheMusic) {
  const ServedProgram program({"--no-tweak"});
  EXPECT_EQ(program.get("/api/recording.phone")
                .body.find("playlist \"Harbour Lights\" 45 by \"Corvane\" \"Paper Moon\""),
            0u);
}

}  // namespace
}  // namespace sim
