// What is done by hand is a script: played headless, it has the same journal.
#include <gtest/gtest.h>

#include "tests/serve/EventReader.h"
#include "tests/serve/ServedProgram.h"

namespace sim {
namespace {

std::string recordingOf(const ServedProgram& program) {
  return program.get("/api/recording.phone").body;
}

TEST(Recordings, HoldWhatWasDoneAndWhen) {
  const ServedProgram program;
  program.command({"playlist \"A\" 180", "advance 10s", "volume 0.25"});
  program.command("volume loud");
  program.value("UIDevice.currentDevice.systemVersion");
  program.post("/api/time", {{"advance", 0.5}});
  program.command("next-track");
  EXPECT_EQ(program.get("/api/recording.phone").body,
            "boot\nlock\nplaylist \"A\" 180\nadvance 10s\nvolume 0.25\nadvance-to "
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
  EXPECT_NE(journal.find("-[SBMediaController pauseForEventSource:0]"), std::string::npos);
  EXPECT_EQ(playHeadless(recordingOf(program)), journal);
}

struct Refusal {
  const char* name;
  const char* line;
  const char* recorded;  // null: nothing
};
void PrintTo(const Refusal& each, std::ostream* out) {
  *out << each.name;
}
class Refusals : public testing::TestWithParam<Refusal> {};

// What was done until then is repeated, and no more; whatever is logged after it shows the same
// addresses.
TEST_P(Refusals, AreReplayedAsFarAsTheyCame) {
  const ServedProgram program;
  const auto [name, line, recorded] = GetParam();
  program.command({"playlist \"A\" 30 \"B\" 47.25", "lock", "control-center open"});
  const std::string before = recordingOf(program);
  EXPECT_EQ(program.command(line).status, 400);
  EXPECT_EQ(recordingOf(program), before + (recorded == nullptr ? "" : recorded));
  program.command({"module expand", "advance 20s", "respring"});
  program.command("control-center open");  // the next host takes it
  const std::string journal = program.journal();
  EXPECT_NE(journal.find(": 0x2800000"), std::string::npos) << journal;
  EXPECT_EQ(playHeadless(recordingOf(program)), journal);
}

INSTANTIATE_TEST_SUITE_P(
    , Refusals,
    testing::Values(Refusal{"InTheFirstRound", "repeat 3 volume 0.25 then volume 9",
                            "expect-refused repeat 3 volume 0.25 then volume 9\n"},
                    Refusal{"WhenTimeHasPassed", "repeat 9 advance 20s then expect-track \"A\"",
                            "expect-refused repeat 9 advance 20s then expect-track \"A\"\n"},
                    Refusal{"WithoutALineOfTheJournal", "repeat 2 wall-clock +1h then screen dim",
                            "expect-refused repeat 2 wall-clock +1h then screen dim\n"},
                    Refusal{"OfAnExpectationThatShowsAnAddress",
                            "expect NSObject.new.description \"none\"",
                            "expect-refused expect NSObject.new.description \"none\"\n"},
                    Refusal{"OfASecondCommandThatIsNone", "repeat 2 lock then lok", nullptr},
                    Refusal{"OfAWordTooMany", "wall-clock +1h now", nullptr},
                    Refusal{"BeforeItHasBegun", "seek -1", nullptr}),
    [](const auto& each) { return each.param.name; });

TEST(Recordings, RepeatALookThatTheJournalShows) {
  const ServedProgram program;
  program.command({"lock", "get NSObject.new.description", "get NSObject.new.hash"});
  program.command({"get UIDevice.currentDevice.systemVersion", "control-center open"});
  EXPECT_EQ(recordingOf(program),
            "boot\nlock\nlock\nget NSObject.new.description\nget NSObject.new.hash\n"
            "control-center open\n");
}

// The page shows settings that nobody on the phone has asked for.
TEST(Recordings, DoNotDependOnWhoWatches) {
  const ServedProgram program;
  program.post("/api/setup",
               {{"lines", {"process Other", "trace HBPreferences initWithIdentifier:"}}});
  EventReader page(program);
  page.next("snapshot");
  program.command({"lock", "set volumeFadeOutTime 20"});
  EXPECT_EQ(program.get("/api/settings").status, 200);
  const std::string journal = program.journal();
  EXPECT_NE(journal.find("user lock"), std::string::npos);
  EXPECT_EQ(playHeadless(recordingOf(program)), journal);
}

TEST(Recordings, GoOnAfterACrash) {
  const ServedProgram program({"--no-music", "--tweak", FAILING_EXTENSION});
  program.command({"playlist \"A\" 180", "volume 0.25", "advance 12500ms"});
  program.command({"volume 0.5", "wall-clock +1h", "send Failing.class readsNowhere"});
  EXPECT_EQ(program.value("NSProcessInfo.processInfo.systemUptime"), "12.5");
  // What one request does is saved in one piece.
  program.command({"expect-volume 0.25", "next-track", "default \"left\" 3"});
  const std::string journal = program.journal();
  EXPECT_NE(journal.find("the host crashed: Segmentation fault"), std::string::npos);
  EXPECT_EQ(playHeadless(recordingOf(program), "--tweak '" FAILING_EXTENSION "'"), journal);
}

TEST(Recordings, GoOnAfterACrashAsTimePassed) {
  const ServedProgram program({"--no-music", "--tweak", FAILING_EXTENSION});
  program.command({"playlist \"A\" 5 \"B\" 180", "advance 1s"});
  program.command(
      "send Failing.class performSelector:withObject:afterDelay: selector aborts nil 9");
  program.post("/api/time", {{"advance", 60}});
  EXPECT_EQ(program.command({"volume 0.1", "advance 1s"}).status, 200);
  const std::string journal = program.journal();
  EXPECT_NE(journal.find("    10.000  the host crashed: Aborted"), std::string::npos) << journal;
  EXPECT_NE(recordingOf(program).find("expect-crash advance-to 10\n"), std::string::npos);
  EXPECT_EQ(playHeadless(recordingOf(program), "--tweak '" FAILING_EXTENSION "'"), journal);
}

// The haptic of the extension's icon buttons is an action's.
TEST(Recordings, HoldTapsOfAPageAndOfAScriptAlike) {
  const ServedProgram program;
  program.command({"unlock", "let b ButtonWithIncreasedTouchArea alloc",
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
  EXPECT_EQ(playHeadless(recording), journal);
}

TEST(Recordings, BeginWithTheMusic) {
  const ServedProgram program({"--no-tweak"});
  EXPECT_EQ(program.get("/api/recording.phone")
                .body.find("playlist \"Harbour Lights\" 45 by \"Corvane\" \"Paper Moon\""),
            0u);
}

}  // namespace
}  // namespace sim
