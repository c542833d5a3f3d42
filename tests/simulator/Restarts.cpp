// What does not survive the end of the host process.
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/simulator/RunProgram.h"

namespace sim {
namespace {

TEST(Restarts, LoseObjectsAndSayWhere) {
  const Outcome outcome = play("boot\nlet s Sample.shared\nrespring\nadvance 1s\nget $s.count");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(firstLine(outcome.errors),
            "SCRIPT:5:5: $s belonged to the host and was lost in the respring at line 3");
}

TEST(Restarts, SayWhereTheHostDied) {
  const Outcome outcome = play("boot\nlet s Sample.shared\nkill\nrespring\nrespring\nget $s");
  EXPECT_EQ(firstLine(outcome.errors),
            "SCRIPT:6:5: $s belonged to the host and was lost as the host died at line 3");
}

class LostValues : public testing::TestWithParam<const char*> {};

TEST_P(LostValues, AreThoseOfTheProcess) {
  const Outcome outcome =
      play("boot\nlet value " + std::string(GetParam()) + "\nrespring\nget $value");
  EXPECT_EQ(firstLine(outcome.errors),
            "SCRIPT:4:5: $value belonged to the host and was lost in the respring at line 3");
}

INSTANTIATE_TEST_SUITE_P(, LostValues,
                         testing::Values("Sample.class", "NSMutableString string", "NSDate.date",
                                         "NSArray arrayWithObject: 3",
                                         "Sample.shared sameClass: Sample",
                                         "Sample.shared sameObject: block b \"v\""));

TEST(Restarts, TheLastValueIsLost) {
  const Outcome outcome = play("boot\nget Sample.shared\nrespring\nexpect-last nil");
  EXPECT_EQ(firstLine(outcome.errors),
            "SCRIPT:4:1: there is no last value: send, call or get comes first");
}

TEST(Restarts, ADeadHostTakesNoMessages) {
  const Outcome outcome = play("boot\nkill\nget Sample");
  EXPECT_EQ(firstLine(outcome.errors),
            "SCRIPT:3:1: get needs a running host: it has died, respring first");
}

TEST(Restarts, TheJournalIsPrintedOnce) {
  const Outcome outcome = play("boot\nkill\nrespring after 2s", "");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output,
            "     0.000  -[SpringBoard applicationDidFinishLaunching:]\n"
            "     2.000  -[SpringBoard applicationDidFinishLaunching:]\n");
}

TEST(Restarts, TheLineThatKillsIsTheLastOfItsHost) {
  const Outcome outcome = play("kill-at 1\nboot\nexpect Sample.shared.count 0", "");
  EXPECT_EQ(outcome.status, 0) << outcome.errors;
  EXPECT_EQ(outcome.output,
            "     0.000  -[SpringBoard applicationDidFinishLaunching:]\n"
            "     0.000  -[SpringBoard applicationDidFinishLaunching:]\n");
}

TEST(Restarts, AKeptPhoneHoldsOnlyItsOwnFiles) {
  const std::string root = writeFile("x", "") + "-phone";
  const Outcome outcome =
      play("file \"/a/b\" \"c\"\nboot\nkill\nrespring", "--quiet --root '" + root + "'");
  EXPECT_EQ(outcome.status, 0) << outcome.errors;
  EXPECT_TRUE(std::filesystem::exists(root + "/a/b"));
  EXPECT_FALSE(std::filesystem::exists(root + ".restart.json"));
}

}  // namespace
}  // namespace sim
