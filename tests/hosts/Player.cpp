#include "simulator/mediaremote/Player.h"

#include <nlohmann/json.hpp>

#include "tests/hosts/TestPhone.h"

namespace sim {
namespace {

Track track(const char* title, double length) {
  return {title, "", "", nanoseconds(length)};
}

class PlayerTest : public TestPhone {
 protected:
  PlayerTest() { player.load({track("A", 10), track("B", 20), track("C", 30)}); }

  std::string title() const {
    return player.track() == nullptr ? "nothing" : player.track()->title.value_or("untitled");
  }

  Player player{phone};
};

TEST_F(PlayerTest, NothingPlaysBeforePlay) {
  EXPECT_EQ(title(), "nothing");
  EXPECT_FALSE(player.isPlaying());
  EXPECT_EQ(player.position(), 0);
}

TEST_F(PlayerTest, TracksFollowEachOtherWithoutGaps) {
  player.play();
  advance(9.5);
  EXPECT_EQ(title(), "A");
  EXPECT_EQ(player.position(), 9.5);
  advance(0.5);
  EXPECT_EQ(title(), "B");
  EXPECT_EQ(player.position(), 0);
  advance(21);
  EXPECT_EQ(title(), "C");
  EXPECT_EQ(player.position(), 1);
  EXPECT_EQ(timeOf("player play \"A\""), 0);
  EXPECT_EQ(timeOf("player track \"B\""), 10);
  EXPECT_EQ(timeOf("player track \"C\""), 30);
}

TEST_F(PlayerTest, StopsAfterTheLastTrack) {
  player.play();
  advance(61);
  EXPECT_EQ(title(), "nothing");
  EXPECT_FALSE(player.isPlaying());
  EXPECT_EQ(timeOf("player stop"), 60);
}

TEST_F(PlayerTest, PlaysFromTheStartAgainAfterStopping) {
  player.play();
  advance(61);
  player.play();
  advance(3);
  EXPECT_EQ(title(), "A");
  EXPECT_EQ(player.position(), 3);
}

TEST_F(PlayerTest, APauseKeepsThePosition) {
  player.play();
  advance(4);
  player.pause();
  advance(100);
  EXPECT_EQ(title(), "A");
  EXPECT_EQ(player.position(), 4);
  player.play();
  advance(6);
  EXPECT_EQ(title(), "B");
}

TEST_F(PlayerTest, PausingAPausedPlayerChangesNothing) {
  player.play();
  player.pause();
  player.pause();
  EXPECT_EQ(count("player pause"), 1);
}

TEST_F(PlayerTest, SkippingStartsTheTrackAtOnce) {
  player.play();
  advance(4);
  player.nextTrack();
  EXPECT_EQ(title(), "B");
  advance(19);
  EXPECT_EQ(title(), "B");
  advance(1);
  EXPECT_EQ(title(), "C");
  player.nextTrack();
  EXPECT_EQ(title(), "nothing");
}

TEST_F(PlayerTest, GoingBackFromTheFirstTrackBeginsItAgain) {
  player.play();
  advance(12);
  player.previousTrack();
  EXPECT_EQ(title(), "A");
  advance(3);
  player.previousTrack();
  EXPECT_EQ(title(), "A");
  EXPECT_EQ(player.position(), 0);
}

TEST_F(PlayerTest, SkippingAPausedPlayerLeavesItPaused) {
  player.play();
  player.pause();
  player.nextTrack();
  advance(100);
  EXPECT_EQ(title(), "B");
  EXPECT_FALSE(player.isPlaying());
  EXPECT_EQ(player.position(), 0);
}

TEST_F(PlayerTest, SeekingMovesTheEnd) {
  player.play();
  player.seek(8);
  EXPECT_EQ(player.position(), 8);
  advance(2);
  EXPECT_EQ(title(), "B");
  player.seek(1000);
  advance(0);
  EXPECT_EQ(title(), "C");
}

TEST_F(PlayerTest, SeekingAPausedTrackMovesWhereItGoesOn) {
  player.play();
  player.pause();
  player.seek(7);
  player.play();
  EXPECT_EQ(player.position(), 7);
  advance(3);
  EXPECT_EQ(title(), "B");
}

TEST_F(PlayerTest, ARepeatedTrackBeginsAgainUntilSkipped) {
  player.setRepeatsOne(true);
  player.play();
  advance(25);
  EXPECT_EQ(title(), "A");
  EXPECT_EQ(player.position(), 5);
  EXPECT_EQ(count("player track \"A\""), 2);
  player.nextTrack();
  EXPECT_EQ(title(), "B");
}

TEST_F(PlayerTest, ATrackMayHaveNoTitle) {
  player.load({{std::nullopt, "", "", nanoseconds(5)}});
  player.play();
  EXPECT_EQ(title(), "untitled");
  EXPECT_EQ(count("player play nil"), 1);
}

TEST_F(PlayerTest, ANewPlaylistEndsTheOldOne) {
  player.play();
  player.load({track("Z", 5)});
  EXPECT_EQ(title(), "nothing");
  player.play();
  EXPECT_EQ(title(), "Z");
}

TEST_F(PlayerTest, ObserversHearOfEveryChange) {
  int changes = 0;
  player.observe([&changes] { ++changes; });
  player.play();
  player.pause();
  player.play();
  player.seek(2);
  player.nextTrack();
  EXPECT_EQ(changes, 5);
  advance(20);
  EXPECT_EQ(changes, 6);
  player.stop();
  EXPECT_EQ(changes, 7);
  player.stop();
  EXPECT_EQ(changes, 7);
}

TEST_F(PlayerTest, StartsOnceThePhoneHasBooted) {
  player.playOnceBooted();
  EXPECT_FALSE(player.isPlaying());
  player.hostDidBoot();
  advance(0);
  EXPECT_TRUE(player.isPlaying());
  player.pause();
  player.playOnceBooted();
  EXPECT_TRUE(player.isPlaying());
}

// Where the music is 12 seconds after the host went away 5 seconds into A.
TEST_F(PlayerTest, TheMusicGoesOnWhileTheHostIsAway) {
  advance(100);
  player.play();
  advance(5);
  const auto saved = phone.saveSurvivors();
  TemporaryFolder root;
  Phone after{root.path()};
  Player restored{after};
  after.clock.advanceTo(nanoseconds(117));
  after.restoreSurvivors(saved);
  after.queue.runDue();
  ASSERT_NE(restored.track(), nullptr);
  EXPECT_EQ(restored.track()->title, "B");
  EXPECT_EQ(restored.position(), 7);
  EXPECT_TRUE(restored.isPlaying());
}

// The host dies while it launches, before the music has begun.
TEST_F(PlayerTest, MusicThatWaitsForTheHostStillWaitsAfterARestart) {
  player.playOnceBooted();
  const auto saved = phone.saveSurvivors();
  TemporaryFolder root;
  Phone after{root.path()};
  Player restored{after};
  restored.hostDidBoot();
  after.restoreSurvivors(saved);
  after.queue.runDue();
  EXPECT_TRUE(restored.isPlaying());
}

TEST_F(PlayerTest, APausedPlayerIsStillPausedAfterARestart) {
  player.setRepeatsOne(true);
  player.play();
  advance(5);
  player.pause();
  const auto saved = phone.saveSurvivors();
  TemporaryFolder root;
  Phone after{root.path()};
  Player restored{after};
  after.restoreSurvivors(saved);
  after.queue.runUntil(nanoseconds(100));
  EXPECT_EQ(restored.position(), 5);
  restored.play();
  after.queue.runUntil(nanoseconds(106));
  EXPECT_EQ(restored.track()->title, "A");
  EXPECT_EQ(restored.position(), 1);
}

}  // namespace
}  // namespace sim
