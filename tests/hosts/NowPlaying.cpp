#include "simulator/mediaremote/NowPlaying.h"

#include <optional>

#include "objc/Block.h"
#include "objc/Class.h"
#include "tests/hosts/TestHost.h"

namespace sim {
namespace {

struct Listener : objc::Implementation<Listener> {
  static inline int infoChanges;
  static inline int applicationChanges;
  void infoDidChange(objc::Object) { ++infoChanges; }
  void applicationDidChange(objc::Object) { ++applicationChanges; }

  static void registerClass() {
    objc::ClassBuilder<Listener>("TestListener", "NSObject")
        .method<"infoDidChange:", &Listener::infoDidChange>()
        .method<"applicationDidChange:", &Listener::applicationDidChange>()
        .finish();
  }
};

class NowPlayingTest : public TestHost {
 protected:
  NowPlayingTest() {
    boot();
    launchSpringBoard();
    Listener::registerClass();
    listener_ = Listener::make();
    listen(objc::selector<"infoDidChange:">(), kMRMediaRemoteNowPlayingInfoDidChangeNotification);
    listen(objc::selector<"applicationDidChange:">(),
           kMRMediaRemoteNowPlayingApplicationDidChangeNotification);
  }

  // What the function reports; the outer optional is empty when it has not reported.
  std::optional<objc::Strong<objc::Object>> info() {
    std::optional<objc::Strong<objc::Object>> reported;
    MRMediaRemoteGetNowPlayingInfo(
        &_dispatch_main_q, objc::block<void(objc::Object)>(
                               [&reported](objc::Object info) { reported = objc::retain(info); })
                               .get()
                               .get());
    EXPECT_FALSE(reported.has_value()) << "reported before the main queue ran";
    advance(0);
    return reported;
  }

  objc::Strong<objc::Object> infoValue(id key) {
    const auto reported = info();
    return objc::retain(objc::send<objc::Object, "objectForKey:">(reported.value().get(), key));
  }

 private:
  void listen(SEL selector, id name) {
    const auto center =
        objc::send<objc::Object, "defaultCenter">(objc_getClass("NSNotificationCenter"));
    objc::send<void, "addObserver:selector:name:object:">(center, listener_.get(), selector, name,
                                                          nullptr);
  }

  objc::Strong<objc::Object> listener_;
};

TEST_F(NowPlayingTest, WithoutMusicThereIsNoInformation) {
  const auto reported = info();
  ASSERT_TRUE(reported.has_value());
  EXPECT_FALSE(*reported);
}

TEST_F(NowPlayingTest, TellsTheTrackAndItsPosition) {
  playTracks();
  advance(4);
  EXPECT_EQ(text(infoValue(kMRMediaRemoteNowPlayingInfoTitle).get()), "A");
  EXPECT_EQ(text(infoValue(kMRMediaRemoteNowPlayingInfoArtist).get()), "The Band");
  EXPECT_FALSE(infoValue(kMRMediaRemoteNowPlayingInfoAlbum));
  const auto value = [this](id key) {
    return objc::send<double, "doubleValue">(infoValue(key).get());
  };
  EXPECT_EQ(value(kMRMediaRemoteNowPlayingInfoDuration), 10);
  EXPECT_EQ(value(kMRMediaRemoteNowPlayingInfoElapsedTime), 4);
  EXPECT_EQ(value(kMRMediaRemoteNowPlayingInfoPlaybackRate), 1);
  Player::current().pause();
  EXPECT_EQ(value(kMRMediaRemoteNowPlayingInfoPlaybackRate), 0);
}

TEST_F(NowPlayingTest, ATrackWithoutTitleHasNoTitleEntry) {
  Player::current().load({{std::nullopt, "", "", nanoseconds(10)}});
  Player::current().play();
  ASSERT_TRUE(*info());
  EXPECT_FALSE(infoValue(kMRMediaRemoteNowPlayingInfoTitle));
}

TEST_F(NowPlayingTest, EveryChangeIsAnnouncedWhenTheMainQueueRunsANewTrackTwice) {
  playTracks();
  EXPECT_EQ(Listener::infoChanges, 0);
  advance(0);
  EXPECT_EQ(Listener::infoChanges, 2);
  advance(10);
  EXPECT_EQ(Listener::infoChanges, 4);
  Player::current().pause();
  Player::current().seek(3);
  advance(0);
  EXPECT_EQ(Listener::infoChanges, 6);
}

TEST_F(NowPlayingTest, NothingIsAnnouncedToNobody) {
  MRMediaRemoteUnregisterForNowPlayingNotifications();
  playTracks();
  advance(0);
  EXPECT_EQ(Listener::infoChanges, 0);
  MRMediaRemoteUnregisterForNowPlayingNotifications();
  MRMediaRemoteRegisterForNowPlayingNotifications(&_dispatch_main_q);
  Player::current().pause();
  advance(0);
  EXPECT_EQ(Listener::infoChanges, 1);
}

TEST_F(NowPlayingTest, TheApplicationChangesWhenMusicBeginsAndEnds) {
  playTracks();
  advance(15);
  EXPECT_EQ(Listener::applicationChanges, 1);
  advance(15);
  EXPECT_EQ(Listener::applicationChanges, 2);
}

TEST_F(NowPlayingTest, AQuicklySkippedTrackIsNeverReported) {
  playTracks();
  std::vector<std::string> titles;
  const auto ask = [&titles] {
    MRMediaRemoteGetNowPlayingInfo(
        &_dispatch_main_q, objc::block<void(objc::Object)>([&titles](objc::Object info) {
                             titles.push_back(text(objc::send<objc::Object, "objectForKey:">(
                                 info, kMRMediaRemoteNowPlayingInfoTitle)));
                           })
                               .get()
                               .get());
  };
  ask();
  Player::current().nextTrack();
  ask();
  advance(0);
  EXPECT_EQ(titles, (std::vector<std::string>{"B", "B"}));
}

class BeforeLaunch : public TestHost {};

TEST_F(BeforeLaunch, ThereIsNobodyToTell) {
  boot();
  playTracks();
  advance(0);
  EXPECT_EQ(journal(), std::vector<std::string>{"player play \"A\""});
}

TEST_F(NowPlayingTest, NamesAreTheirOwnValues) {
  EXPECT_EQ(text(objc::Object(kMRMediaRemoteNowPlayingInfoTitle)),
            "kMRMediaRemoteNowPlayingInfoTitle");
  EXPECT_EQ(text(objc::Object(kMRMediaRemoteNowPlayingInfoDidChangeNotification)),
            "kMRMediaRemoteNowPlayingInfoDidChangeNotification");
}

TEST_F(NowPlayingTest, CommandsReachThePlayer) {
  playTracks();
  EXPECT_TRUE(MRMediaRemoteSendCommand(4, nullptr));
  EXPECT_EQ(Player::current().track()->title, "B");
  EXPECT_TRUE(MRMediaRemoteSendCommand(5, nullptr));
  EXPECT_EQ(Player::current().track()->title, "A");
  EXPECT_TRUE(MRMediaRemoteSendCommand(1, nullptr));
  EXPECT_FALSE(Player::current().isPlaying());
  EXPECT_TRUE(MRMediaRemoteSendCommand(0, nullptr));
  EXPECT_TRUE(MRMediaRemoteSendCommand(2, nullptr));
  EXPECT_FALSE(Player::current().isPlaying());
  EXPECT_TRUE(MRMediaRemoteSendCommand(3, nullptr));
  EXPECT_EQ(Player::current().track(), nullptr);
  EXPECT_FALSE(MRMediaRemoteSendCommand(77, nullptr));
  EXPECT_EQ(count("MRMediaRemoteSendCommand(4)"), 1);
  EXPECT_EQ(count("MRMediaRemoteSendCommand(77)"), 1);
}

}  // namespace
}  // namespace sim
