#include "simulator/mediaremote/AudioSystem.h"

#include <cmath>
#include <nlohmann/json.hpp>

#include "tests/hosts/TestPhone.h"

namespace sim {
namespace {

class AudioSystemTest : public TestPhone {
 protected:
  AudioSystem audio{phone};
};

TEST_F(AudioSystemTest, EveryCategoryHasItsVolume) {
  audio.setVolume(0.25F);
  audio.setVolume(0.75F, "Ringtone");
  EXPECT_EQ(audio.volume(), 0.25F);
  EXPECT_EQ(audio.volume("Audio/Video"), 0.25F);
  EXPECT_EQ(audio.volume("Ringtone"), 0.75F);
}

TEST_F(AudioSystemTest, VolumesAreHeldBetweenSilentAndFull) {
  audio.setVolume(-0.001F);
  EXPECT_EQ(audio.volume(), 0);
  audio.setVolume(1.5F);
  EXPECT_EQ(audio.volume(), 1);
  audio.setVolume(std::nanf(""));
  EXPECT_EQ(audio.volume(), 0);
}

TEST_F(AudioSystemTest, TheIndicatorShowsChangesOnly) {
  audio.setVolume(0.25F);
  audio.setVolume(0.25F);
  EXPECT_EQ(journal(), std::vector<std::string>{"HUD volume 0.25"});
}

TEST_F(AudioSystemTest, ObserversHearOfTheMediaVolumeUntilTheyAreForgotten) {
  int first = 0, second = 0;
  const long number = audio.observe([&] {
    ++first;
    EXPECT_EQ(audio.volume(), 0.25F);
  });
  audio.observe([&] { ++second; });
  audio.setVolume(0.25F);
  audio.setVolume(0.25F);
  audio.setVolume(0.75F, "Ringtone");
  EXPECT_EQ(first, 1);
  EXPECT_EQ(second, 1);
  audio.forget(number);
  audio.setVolume(1);
  EXPECT_EQ(first, 1);
  EXPECT_EQ(second, 2);
}

TEST_F(AudioSystemTest, AnObserverForgottenByAnotherHearsNothingMore) {
  int heard = 0;
  long second = 0;
  audio.observe([&] { audio.forget(second); });
  second = audio.observe([&] { ++heard; });
  audio.setVolume(0.25F);
  EXPECT_EQ(heard, 0);
}

TEST_F(AudioSystemTest, ASuppressedIndicatorShowsNothing) {
  audio.setIndicatorSuppressed(true);
  audio.setVolume(0.25F);
  EXPECT_TRUE(journal().empty());
  audio.setIndicatorSuppressed(false);
  audio.setVolume(0.5F);
  EXPECT_EQ(count("HUD volume 0.5"), 1);
}

TEST_F(AudioSystemTest, ARouteWithStepsHoldsTheNearestOfThem) {
  audio.setVolume(0.5F);
  audio.setRoute({"Headset", 16});
  audio.setVolume(0.47F);
  EXPECT_EQ(audio.volume(), 0.5F);
  audio.setVolume(0.46F);
  EXPECT_EQ(audio.volume(), 0.4375F);
  audio.setVolume(0.46F, "Ringtone");
  EXPECT_EQ(audio.volume("Ringtone"), 0.46F);
}

TEST_F(AudioSystemTest, AWriteIsReadAtOnceAndHeardOfLater) {
  audio.write(0.25F, mediaCategory);
  EXPECT_EQ(audio.volume(), 0.25F);
  EXPECT_TRUE(journal().empty());
  phone.queue.runDue();
  EXPECT_EQ(count("HUD volume 0.25"), 1);
}

TEST_F(AudioSystemTest, VolumesAndRouteSurviveTheHostAndSuppressionDoesNot) {
  audio.setRoute({"Headset", 16});
  audio.setIndicatorSuppressed(true);
  audio.setVolume(0.125F);
  const auto saved = phone.saveSurvivors();
  TemporaryFolder root;
  Phone after{root.path()};
  AudioSystem restored{after};
  after.restoreSurvivors(saved);
  EXPECT_EQ(restored.volume(), 0.125F);
  EXPECT_EQ(restored.route().name, "Headset");
  EXPECT_EQ(restored.route().steps, 16);
  EXPECT_FALSE(restored.isIndicatorSuppressed());
  EXPECT_TRUE(after.journal.entries().empty());
}

}  // namespace
}  // namespace sim
