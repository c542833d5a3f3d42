#include "tests/hosts/TestHost.h"

namespace sim {
namespace {

class SBVolumeControlTest : public TestHost {
 protected:
  SBVolumeControlTest() { boot(); }

  void setVolume(float level, const char* category) {
    objc::send<void, "setVolume:forCategory:">(sharedInstance("SBVolumeControl"), level,
                                               string(category));
  }
  float mediaVolume() {
    return objc::send<float, "_getMediaVolumeForIAP">(sharedInstance("SBVolumeControl"));
  }
};

TEST_F(SBVolumeControlTest, SetsTheVolumeOfMusic) {
  setVolume(0.25F, "Audio/Video");
  EXPECT_EQ(mediaVolume(), 0.25F);
  Phone::current().queue.runDue();
  const std::vector<std::string> expected = {
      "-[SBVolumeControl setVolume:0.25 forCategory:\"Audio/Video\"]", "HUD volume 0.25"};
  EXPECT_EQ(journal(), expected);
}

TEST_F(SBVolumeControlTest, LeavesMusicAloneForOtherCategories) {
  setVolume(0.25F, "Audio/Video");
  setVolume(1, "Ringtone");
  EXPECT_EQ(mediaVolume(), 0.25F);
}

TEST_F(SBVolumeControlTest, HoldsOvershootingValues) {
  setVolume(-0.125F, "Audio/Video");
  EXPECT_EQ(mediaVolume(), 0);
  setVolume(2, "Audio/Video");
  EXPECT_EQ(mediaVolume(), 1);
}

}  // namespace
}  // namespace sim
