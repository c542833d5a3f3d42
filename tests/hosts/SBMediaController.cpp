#include "simulator/springboard/SBMediaController.h"

#include "tests/hosts/TestHost.h"

namespace sim {
namespace {

class SBMediaControllerTest : public TestHost {
 protected:
  objc::Object controller() { return sharedInstance("SBMediaController"); }
  bool isPlaying() { return objc::send<bool, "isPlaying">(controller()); }
  bool isPaused() { return objc::send<bool, "isPaused">(controller()); }
};

TEST_F(SBMediaControllerTest, ThereIsOne) {
  boot();
  EXPECT_TRUE(controller());
  EXPECT_EQ(controller(), controller());
}

TEST_F(SBMediaControllerTest, PausesAndPlaysTheMusic) {
  phone.setup.systemVersion = "14.8";
  boot();
  EXPECT_FALSE(isPaused());
  playTracks();
  EXPECT_TRUE(isPlaying());
  objc::send<void, "pause">(controller());
  EXPECT_FALSE(isPlaying());
  EXPECT_TRUE(isPaused());
  objc::send<void, "play">(controller());
  EXPECT_TRUE(isPlaying());
  EXPECT_TRUE((objc::send<bool, "pauseForEventSource:">(controller(), 0L)));
  EXPECT_TRUE(isPaused());
  objc::send<void, "togglePlayPause">(controller());
  EXPECT_TRUE(isPlaying());
  EXPECT_EQ(count("-[SBMediaController pause]"), 1);
  EXPECT_EQ(count("-[SBMediaController pauseForEventSource:0]"), 1);
}

TEST_F(SBMediaControllerTest, TheRequestIsJournalledBeforeItsEffect) {
  boot();
  playTracks();
  objc::send<bool, "pauseForEventSource:">(controller(), 1L);
  const std::vector<std::string> expected = {
      "player play \"A\"", "-[SBMediaController pauseForEventSource:1]", "player pause"};
  EXPECT_EQ(journal(), expected);
}

TEST_F(SBMediaControllerTest, ARefusedCommandDoesNothing) {
  boot();
  playTracks();
  SBMediaController::setRefusesCommands(true);
  EXPECT_FALSE((objc::send<bool, "pauseForEventSource:">(controller(), 0L)));
  EXPECT_TRUE(isPlaying());
  SBMediaController::setRefusesCommands(false);
  EXPECT_TRUE((objc::send<bool, "pauseForEventSource:">(controller(), 0L)));
  EXPECT_FALSE(isPlaying());
}

TEST_F(SBMediaControllerTest, NamesTheApplicationThatHasATrack) {
  boot();
  const auto identifier = [this] {
    return objc::send<objc::Object, "bundleIdentifier">(
        objc::send<objc::Object, "nowPlayingApplication">(controller()));
  };
  EXPECT_FALSE(identifier());
  playTracks();
  EXPECT_EQ(text(identifier()), "com.apple.Music");
  Player::current().stop();
  EXPECT_FALSE(identifier());
}

TEST_F(SBMediaControllerTest, HasTheMediaVolumeBeforeIOS13) {
  phone.setup.systemVersion = "12.5";
  boot();
  objc::send<void, "setSuppressHUD:">(controller(), true);
  EXPECT_TRUE((objc::send<bool, "suppressHUD">(controller())));
  objc::send<void, "setVolume:">(controller(), 0.25F);
  EXPECT_EQ((objc::send<float, "volume">(controller())), 0.25F);
  objc::send<void, "setVolume:">(controller(), 1.5F);
  EXPECT_EQ((objc::send<float, "volume">(controller())), 1);
  const std::vector<std::string> expected = {"-[SBMediaController setSuppressHUD:YES]",
                                             "-[SBMediaController setVolume:0.25]",
                                             "-[SBMediaController setVolume:1.5]"};
  EXPECT_EQ(journal(), expected);
}

TEST_F(SBMediaControllerTest, ItsVolumeControlIsReadByKey) {
  boot();
  EXPECT_EQ((objc::send<objc::Object, "valueForKey:">(controller(), string("_volumeControl"))),
            sharedInstance("SBVolumeControl"));
  EXPECT_EQ((objc::send<objc::Object, "safeValueForKey:">(controller(), string("_volumeControl"))),
            sharedInstance("SBVolumeControl"));
}

TEST_F(SBMediaControllerTest, WithoutAVolumeControlClassThereIsNone) {
  phone.setup.missingClasses.insert("SBVolumeControl");
  boot();
  EXPECT_FALSE(
      (objc::send<objc::Object, "safeValueForKey:">(controller(), string("_volumeControl"))));
}

TEST_F(SBMediaControllerTest, HasNoPlainPauseNorVolumeFromIOS15On) {
  boot();
  EXPECT_FALSE(objc::respondsTo<"volume">(controller()));
  EXPECT_FALSE(objc::respondsTo<"pause">(controller()));
  EXPECT_TRUE(objc::respondsTo<"pauseForEventSource:">(controller()));
}

TEST_F(SBMediaControllerTest, TheClassMayBeMissing) {
  phone.setup.missingClasses.insert("SBMediaController");
  boot();
  EXPECT_FALSE(controller());
}

}  // namespace
}  // namespace sim
