// What was done, as a script.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

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

TEST(Recorder, KeepsWhatEndsTheProcess) {
  Recording before;
  before.begin("boot", 0);
  before.done(0);
  before.begin("respring", nanoseconds(5));
  Recording after;
  after.restore(before.save());
  EXPECT_EQ(after.asScript(nanoseconds(5)), "boot\nadvance-to 5\nrespring\n");
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
