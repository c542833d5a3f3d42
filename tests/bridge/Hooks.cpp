// Hooks on methods of the host: own, inherited, replaced twice, late.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "objc/Class.h"
#include "objc/Hook.h"

namespace {

using objc::Object;
using objc::Original;

struct Player : objc::Implementation<Player> {
  long volume;
  long level() { return volume; }
  void setLevel(long value) { volume = value; }
  long own() { return 1; }
  static Class registerClass() {
    return objc::ClassBuilder<Player>("Player", "NSObject")
        .method<"level", &Player::level>()
        .method<"setLevel:", &Player::setLevel>()
        .method<"own", &Player::own>()
        .finish();
  }
};
struct LoudPlayer : objc::Implementation<LoudPlayer> {
  static Class registerClass() {
    return objc::ClassBuilder<LoudPlayer>("LoudPlayer", "Player").finish();
  }
};

struct PlayerView : Object {
  using Object::Object;
  long level() const { return objc::send<long, "level">(*this); }
  void setLevel(long value) const { objc::send<void, "setLevel:">(*this, value); }
};

struct Hooks : testing::Test {
  void SetUp() override {
    if (Player::cls() != nullptr) GTEST_SKIP() << "hooks stay: run each test in its own process";
    ASSERT_TRUE(Player::registerClass());
    ASSERT_TRUE(LoudPlayer::registerClass());
    player = Player::make<PlayerView>();
    loud = LoudPlayer::make<PlayerView>();
    player->setLevel(3);
    loud->setLevel(3);
  }
  objc::Strong<PlayerView> player, loud;
};

long plusHundred(Original<long(PlayerView)> original, PlayerView self) {
  return original(self) + 100;
}
long timesTwo(Original<long(PlayerView)> original, PlayerView self) {
  return original(self) * 2;
}
void clamp(Original<void(PlayerView, long)> original, PlayerView self, long value) {
  original(self, value > 10 ? 10 : value);
}
long never(Original<long(PlayerView)>, PlayerView) {
  ADD_FAILURE() << "a hook ran that was not installed";
  return 0;
}

TEST_F(Hooks, ReplaceAMethodAndReachThePreviousOne) {
  EXPECT_TRUE((objc::hook<"Player", "level", plusHundred>()));
  EXPECT_TRUE((objc::hook<"Player", "setLevel:", clamp>()));
  player->setLevel(40);
  EXPECT_EQ(player->level(), 110);
}

TEST_F(Hooks, TakeEffectAfterTheMethodWasCalled) {
  // Both classes have the method in their caches by now.
  EXPECT_EQ(player->level(), 3);
  EXPECT_EQ(loud->level(), 3);
  EXPECT_TRUE((objc::hook<"Player", "level", plusHundred>()));
  EXPECT_EQ(player->level(), 103);
  EXPECT_EQ(loud->level(), 103);
}

TEST_F(Hooks, OnAnInheritedMethodLeaveTheBaseAlone) {
  EXPECT_EQ(loud->level(), 3);
  EXPECT_TRUE((objc::hook<"LoudPlayer", "level", plusHundred>()));
  EXPECT_EQ(loud->level(), 103);
  EXPECT_EQ(player->level(), 3);
}

TEST_F(Hooks, OnBothLevelsChain) {
  EXPECT_TRUE((objc::hook<"Player", "level", timesTwo>()));
  EXPECT_TRUE((objc::hook<"LoudPlayer", "level", plusHundred>()));
  EXPECT_EQ(player->level(), 6);
  EXPECT_EQ(loud->level(), 106);
}

TEST_F(Hooks, OfOneMethodAllRunTheLastOutermost) {
  EXPECT_TRUE((objc::hook<"Player", "level", plusHundred>()));
  EXPECT_TRUE((objc::hook<"Player", "level", timesTwo>()));
  EXPECT_EQ(player->level(), (3 + 100) * 2);
}

TEST_F(Hooks, OfTwoMethodsWithOneFunctionHaveTheirOwnPreviousOnes) {
  EXPECT_TRUE((objc::hook<"Player", "level", plusHundred>()));
  EXPECT_TRUE((objc::hook<"Player", "own", plusHundred>()));
  EXPECT_EQ(player->level(), 103);
  EXPECT_EQ((objc::send<long, "own">(player)), 101);
}

TEST_F(Hooks, OfTwoClassesWithOneFunctionHaveTheirOwnPreviousOnes) {
  EXPECT_TRUE((objc::hook<"Player", "level", plusHundred>()));
  EXPECT_TRUE((objc::hook<"LoudPlayer", "level", plusHundred>()));
  EXPECT_EQ(player->level(), 103);
  EXPECT_EQ(loud->level(), 203);
}

TEST_F(Hooks, OfAbsentClassesAndMethodsAreSilentlyMissing) {
  EXPECT_FALSE((objc::hook<"NoClassOfThatName", "level", never>()));
  EXPECT_FALSE((objc::hook<"Player", "noMethodOfThatName", never>()));
  EXPECT_FALSE(objc::respondsTo<"noMethodOfThatName">(player.get()));
  EXPECT_EQ(player->level(), 3);
}

TEST_F(Hooks, KeepTheRegisteredTypes) {
  EXPECT_TRUE((objc::hook<"LoudPlayer", "setLevel:", clamp>()));
  Method method = class_getInstanceMethod(LoudPlayer::cls(), objc::selector<"setLevel:">());
  EXPECT_STREQ(method_getTypeEncoding(method), "v@:q");
}

std::vector<std::string> selectors;
long noteSelector(Original<long(PlayerView)> original, PlayerView self) {
  selectors.push_back(sel_getName(original.selector()));
  return original(self);
}

TEST_F(Hooks, KnowTheSelectorTheyWereCalledBy) {
  EXPECT_TRUE((objc::hook<"Player", "level", noteSelector>()));
  // One implementation under a second name, as an extension that swaps methods leaves it.
  Method method = class_getInstanceMethod(Player::cls(), objc::selector<"level">());
  class_addMethod(Player::cls(), sel_registerName("swappedLevel"), method_getImplementation(method),
                  "q@:");
  EXPECT_EQ(player->level(), 3);
  EXPECT_EQ((objc::send<long, "swappedLevel">(player)), 3);
  EXPECT_EQ(selectors, (std::vector<std::string>{"level", "swappedLevel"}));
}

TEST(Originals, GiveZeroBeforeThePreviousImplementationIsKnown) {
  Original<long(PlayerView)> missing(nullptr, objc::selector<"level">());
  EXPECT_EQ(missing(PlayerView()), 0);
  Original<void(PlayerView, long)> missingSetter(nullptr, objc::selector<"setLevel:">());
  missingSetter(PlayerView(), 1);
}

}  // namespace
