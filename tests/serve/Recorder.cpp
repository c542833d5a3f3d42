// What was done, as a script.
#include <gtest/gtest.h>

#include "simulator/machine/Journal.h"
#include "simulator/serve/Recording.h"

namespace sim {
namespace {

TEST(Recorder, WritesDownWhenThingsWereDone) {
  Recording recording;
  recording.begin("boot", 0);
  recording.done(0);
  recording.begin("lock", nanoseconds(1.25));
  recording.done(nanoseconds(1.25));
  recording.begin("advance 10s", nanoseconds(1.25));
  recording.done(nanoseconds(11.25));
  recording.begin("unlock", nanoseconds(11.25));
  recording.done(nanoseconds(11.25));
  EXPECT_EQ(recording.asScript(nanoseconds(20)),
            "boot\nadvance-to 1.25\nlock\nadvance 10s\nunlock\nadvance-to 20\n");
}

TEST(Recorder, LeavesOutWhatWasRefused) {
  Recording recording;
  recording.begin("volume loud", 0);
  recording.forget();
  recording.done(0);
  EXPECT_EQ(recording.asScript(0), "");
}

TEST(Recorder, WritesDownWhatAnInterruptedLineHasDone) {
  Recording recording;
  recording.begin("boot", 0);
  recording.done(0);
  recording.begin("repeat 9 lock", nanoseconds(5));
  recording.doneBy({"repeat 2 lock", "advance-to 6"}, nanoseconds(6));
  EXPECT_EQ(recording.asScript(nanoseconds(6)),
            "boot\nadvance-to 5\nrepeat 2 lock\nadvance-to 6\n");
}

TEST(Recorder, WritesDownThatTheHostHasCrashed) {
  Recording recording;
  recording.begin("boot", 0);
  recording.done(0);
  recording.saved(nanoseconds(5));
  recording.begin("lock", nanoseconds(5));
  recording.crashed(nanoseconds(5));
  recording.saved(nanoseconds(7));
  recording.crashed(nanoseconds(8));
  EXPECT_EQ(recording.asScript(nanoseconds(8)),
            "boot\nadvance-to 5\nexpect-crash lock\nadvance-to 7\nexpect-crash advance-to 8\n");
}

// The next host knows nothing of them.
TEST(Recorder, HasLinesThatWereNotSavedDieWithTheCrash) {
  Recording recording;
  recording.begin("boot", 0);
  recording.done(0);
  recording.saved(0);
  recording.begin("volume 0.5", 0);
  recording.done(0);
  recording.begin("pause", nanoseconds(2));
  recording.done(nanoseconds(2));
  recording.begin("lock", nanoseconds(2));
  recording.crashed(nanoseconds(2));
  EXPECT_EQ(recording.asScript(nanoseconds(2)),
            "boot\nexpect-crash repeat 1 volume 0.5 then advance-to 2 then pause then lock\n");
}

TEST(Recorder, KeepsTheLinesBeforeBoot) {
  Recording recording;
  for (const char* line : {"ios 16.1", "boot", "lock"}) {
    recording.begin(line, 0);
    recording.done(0);
  }
  EXPECT_EQ(recording.setup(), (std::vector<std::string>{"ios 16.1", "boot"}));
}

TEST(Recorder, WritesTimesExactly) {
  EXPECT_EQ(secondsText(0), "0");
  EXPECT_EQ(secondsText(nanoseconds(61)), "61");
  EXPECT_EQ(secondsText(nanoseconds(0.5)), "0.5");
  EXPECT_EQ(secondsText(1), "0.000000001");
  // As a script reads it: three months later it is still the same nanosecond.
  for (const Nanoseconds each : {Nanoseconds(7'776'000'000'000'001), Nanoseconds(52'740'132'154)})
    EXPECT_EQ(nanoseconds(std::stod(secondsText(each))), each);
}

}  // namespace
}  // namespace sim
