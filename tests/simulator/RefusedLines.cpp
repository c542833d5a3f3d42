// A line that is refused has changed nothing, or a recording says that it was refused; scripts can
// require it.
#include <gtest/gtest.h>

#include "tests/simulator/RunProgram.h"

namespace sim {
namespace {

struct LateWord {
  const char* name;
  const char* line;
  const char* look;  // what would show that the line has taken effect
  const char* before = "boot";
};

void PrintTo(const LateWord& each, std::ostream* out) {
  *out << each.name;
}

class LateWords : public testing::TestWithParam<LateWord> {};

// With the line where it belongs.
std::string scriptWith(const std::string& line) {
  const LateWord& each = LateWords::GetParam();
  const std::string before = each.before;
  return (before == "boot" ? line + '\n' + before : before + '\n' + line) + '\n' + each.look;
}

TEST_P(LateWords, ChangeNothing) {
  const std::string line = GetParam().line;
  const Outcome outcome = play(scriptWith("expect-refused " + line + " late"), "");
  EXPECT_EQ(outcome.errors, "");
  EXPECT_EQ(outcome.output, play(scriptWith(""), "").output);
  EXPECT_NE(outcome.output, play(scriptWith(line), "").output);
}

INSTANTIATE_TEST_SUITE_P(
    , LateWords,
    testing::Values(
        LateWord{"Version", "ios 14.1", "get UIDevice.currentDevice.systemVersion"},
        LateWord{"Locale", "locale de_DE", "get NSLocale.currentLocale.localeIdentifier"},
        LateWord{"Process", "process Other", "get NSProcessInfo.processInfo.processName"},
        LateWord{"Haptics", "haptics 1", "get UIDevice.currentDevice._feedbackSupportLevel"},
        LateWord{"ForeignClass", "class Foreign", "expect-no-class Foreign\nget NSObject.class"},
        LateWord{"Missing", "missing NSObject copy",
                 "expect-responds NSObject.new copy YES\nget NSObject.class"},
        LateWord{
            "MissingMember", "missing SBMediaController isPlaying",
            "expect-responds SBMediaController.sharedInstance isPlaying YES\nget NSObject.class"},
        LateWord{"ClassChanges", "journal-class-changes", ""},
        LateWord{"Trace", "trace NSDate +date", "get NSDate.date"},
        LateWord{"WallClock", "wall-clock +1h", "get NSDate.date", "boot "},
        LateWord{"KillAtLine", "kill-at 2", "playlist \"A\" 9\nadvance 1s", "boot "},
        LateWord{"KillAtText", "kill-at \"player *\"", "playlist \"A\" 9\nadvance 1s", "boot "},
        LateWord{"ClearJournal", "clear-journal",
                 "expect-journal \"-[SpringBoard *\"\nget NSObject.class", "boot "},
        LateWord{"Bluetooth", "bluetooth none", "expect-bluetooth \"A\"\nget NSObject.class",
                 "bluetooth \"A\"\nboot "},
        LateWord{"RepeatAll", "repeat-all YES", "advance 5s", "boot\nplaylist \"A\" 2"}),
    [](const auto& each) { return each.param.name; });

TEST(RefusedLines, AreWhatTheScriptRequires) {
  const Outcome outcome =
      play("boot\nexpect-refused repeat 2 volume 0.25 then volume 2\nexpect-volume 0.25");
  EXPECT_EQ(outcome.errors, "");
  EXPECT_EQ(outcome.status, 0);
}

TEST(RefusedLines, AreMissedWhenTheyAreDone) {
  EXPECT_EQ(firstLine(play("boot\nexpect-refused volume 0.25").errors),
            "SCRIPT:2:1: expected it to be refused");
}

TEST(RefusedLines, AreNoPlaceForMisspeltCommands) {
  EXPECT_EQ(firstLine(play("boot\nexpect-refused volme 2").errors),
            "SCRIPT:2:16: expected a command, found volme");
  EXPECT_EQ(firstLine(play("boot\nexpect-refused").errors), "SCRIPT:2:15: expected a command");
  EXPECT_EQ(firstLine(play("boot\nrepeat 2 volume 0.25 then volme 2").errors),
            "SCRIPT:2:27: expected a command, found volme");
}

TEST(ExpectedCrashes, AreFollowedByTheNextLaunch) {
  const Outcome outcome = play(
      "boot\nlet kept NSProcessInfo.processInfo.processName.length\nlet nobody NSObject "
      "new\nvolume 0.25\nadvance 2s\n"
      "expect-crash send $nobody performSelector: selector nope\n"
      "expect-volume 0.25\nadvance 1s\nget NSProcessInfo.processInfo.systemUptime\nget $kept\nget "
      "$nobody",
      "");
  EXPECT_EQ(
      outcome.output,
      "     0.000  -[SpringBoard applicationDidFinishLaunching:]\n"
      "     0.000  user volume 0.25\n"
      "     0.000  HUD volume 0.25\n"
      "     2.000  the host crashed: -[NSObject nope]: unrecognized selector sent to instance "
      "0x280000040 in -[NSObject performSelector:]\n"
      "     2.000  -[SpringBoard applicationDidFinishLaunching:]\n3\n11\n");
  EXPECT_NE(
      outcome.errors.find("SCRIPT:11:5: $nobody belonged to the host and was lost as the host "
                          "died at line 6"),
      std::string::npos)
      << outcome.errors;
}

TEST(ExpectedCrashes, MustCome) {
  EXPECT_EQ(firstLine(play("boot\nexpect-crash lock").errors),
            "SCRIPT:2:1: expected the host to crash");
}

// In order: by a command, or at a line of the journal at which the script lets it die.
TEST(ExpectedCrashes, AreNoOtherEnds) {
  const std::string crash = "expected the host to crash, but the host has ended in order";
  for (const char* line : {"kill", "respring"})
    EXPECT_EQ(firstLine(play("boot\nexpect-crash " + std::string(line)).errors),
              "SCRIPT:2:1: " + crash);
  EXPECT_EQ(firstLine(play("boot\nkill-at \"user *\"\nexpect-crash volume 0.25").errors),
            "SCRIPT:3:1: " + crash);
  EXPECT_EQ(firstLine(play("boot\nexpect-crash repeat 1 expect-refused volume 2 then kill").errors),
            "SCRIPT:2:1: " + crash);
  EXPECT_EQ(firstLine(play("boot\nexpect-refused kill").errors),
            "SCRIPT:2:1: expected it to be refused, but the host has ended in order");
}

TEST(ExpectedCrashes, StandByThemselves) {
  EXPECT_EQ(firstLine(play("boot\nrepeat 2 expect-crash lock").errors),
            "SCRIPT:2:10: expect-crash is no part of another command");
}

TEST(ExpectedCrashes, AreNoOthers) {
  const Outcome outcome = play(
      "boot\nlet nobody NSObject new\nexpect-crash send $nobody performSelector: selector nope\n"
      "send NSObject.new performSelector: selector nope");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_NE(outcome.errors.find("SCRIPT:4:1: the phone stopped here"), std::string::npos)
      << outcome.errors;
}

}  // namespace
}  // namespace sim
