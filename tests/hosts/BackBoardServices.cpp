#include "simulator/backboard/BackBoardServices.h"

#include "tests/hosts/TestHost.h"

namespace sim {
namespace {

class Termination : public TestHost {
 protected:
  Termination() { boot(); }

  static void terminate(objc::Object application) {
    BKSTerminateApplicationForReasonAndReportWithDescription(application.get(), 5, false,
                                                             string("a test").get());
  }
  static std::string nowPlayingApplication() {
    return notation(objc::send<objc::Object, "bundleIdentifier">(
        objc::send<objc::Object, "nowPlayingApplication">(sharedInstance("SBMediaController"))));
  }
};

TEST_F(Termination, EndsTheMusicOfTheApplication) {
  playTracks();
  EXPECT_EQ(nowPlayingApplication(), "\"com.apple.Music\"");
  terminate(string("com.apple.Music"));
  EXPECT_EQ(nowPlayingApplication(), "nil");
  const std::vector<std::string> expected = {
      "player play \"A\"",
      "BKSTerminateApplicationForReasonAndReportWithDescription(\"com.apple.Music\", 5, NO, "
      "\"a test\")",
      "player stop"};
  EXPECT_EQ(journal(), expected);
}

TEST_F(Termination, OfAnotherApplicationLeavesTheMusic) {
  playTracks();
  terminate(string("com.example.other"));
  terminate(nullptr);
  EXPECT_TRUE(Player::current().isPlaying());
}

TEST_F(Termination, HitsWhoeverHasTakenOver) {
  playTracks();
  Player::current().takeOver("com.example.radio", {"Night Talk", "", "", nanoseconds(60)});
  EXPECT_EQ(nowPlayingApplication(), "\"com.example.radio\"");
  terminate(string("com.apple.Music"));
  EXPECT_TRUE(Player::current().isPlaying());
  terminate(string("com.example.radio"));
  EXPECT_EQ(Player::current().track(), nullptr);
}

}  // namespace
}  // namespace sim
