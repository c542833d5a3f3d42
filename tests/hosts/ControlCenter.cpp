#include "simulator/controlcenter/ControlCenter.h"

#include "simulator/runtime/LiveObjects.h"
#include "tests/hosts/TestHost.h"

namespace sim {
namespace {

using objc::Object;
using objc::send;

class ControlCenterTest : public TestHost {
 protected:
  void launch() {
    boot();
    launchSpringBoard();
    advance(0);
  }

  static Object container() { return send<Object, "mediaContainer">(openedControlCenter()); }
  static Object player() {
    return send<Object, "nowPlayingViewController">(
        send<Object, "contentViewController">(container()));
  }
  static Object header() { return send<Object, "headerView">(send<Object, "view">(player())); }

  static std::size_t live() {
    std::size_t all = 0;
    for (const auto& each : sim::runtime::liveInstanceCounts()) all += each.count;
    return all;
  }

  void openAndClose() {
    const objc::AutoreleasePool pool;
    openControlCenter();
    advance(0);
    send<void, "expandModule">(container());
    advance(0);
    send<void, "didSelectRoutingButton:">(player(), nullptr);
    closeControlCenter();
    advance(1);
  }
};

TEST_F(ControlCenterTest, ThePlayerIsAChildOfTheModulesContent) {
  launch();
  openControlCenter();
  advance(0);
  EXPECT_TRUE(
      isKindOf(send<Object, "parentViewController">(player()), "MRUControlCenterViewController"));
  EXPECT_EQ((send<Object, "_viewControllerForAncestor">(header())), player());
  EXPECT_EQ(moduleContainer(std::string(nowPlayingModule)), container());
}

TEST_F(ControlCenterTest, AModuleThatIsNotThereIsOneThatNobodySees) {
  launch();
  openControlCenter();
  EXPECT_FALSE(moduleContainer("com.example.one") == container());
  closeControlCenter();
  EXPECT_TRUE(moduleContainer(std::string(nowPlayingModule)));
}

TEST_F(ControlCenterTest, TheRoutesNeedTheExpandedModule) {
  launch();
  openControlCenter();
  advance(0);
  send<void, "didSelectRoutingButton:">(player(), nullptr);
  // Later than the call.
  EXPECT_FALSE((send<bool, "isExpanded">(container())));
  EXPECT_EQ((send<long, "layout">(header())), 0);
  advance(0);
  EXPECT_TRUE((send<bool, "isExpanded">(container())));
  EXPECT_EQ((send<long, "layout">(header())), 1);
  send<void, "didSelectRoutingButton:">(player(), nullptr);
  EXPECT_TRUE((send<bool, "isExpanded">(container())));
  EXPECT_EQ((send<long, "layout">(header())), 2);
}

TEST_F(ControlCenterTest, ASizeGivesThePlayerItsLayout) {
  launch();
  openControlCenter();
  advance(0);
  send<void, "setLayout:">(player(), 1L);
  send<void, "expandModule">(container());
  advance(0);
  EXPECT_EQ((send<long, "layout">(player())), 2);
  send<void, "setLayout:">(player(), 1L);
  send<void, "dismissExpandedModuleAnimated:">(container(), false);
  EXPECT_EQ((send<long, "layout">(player())), 0);
}

TEST_F(ControlCenterTest, ClosedBeforeItsModuleExpandsNothingIsLeft) {
  launch();
  openControlCenter();
  advance(0);
  {
    const objc::AutoreleasePool pool;
    send<void, "expandModule">(container());
    closeControlCenter();
  }
  advance(1);
  EXPECT_EQ(sim::runtime::liveInstanceCount(objc_getClass("MRUControlCenterViewController")), 0U);
}

TEST_F(ControlCenterTest, LeavesNoObjectBehind) {
  launch();
  playTracks();
  openAndClose();
  const std::size_t before = live();
  for (int i = 0; i < 100; ++i) openAndClose();
  EXPECT_EQ(live(), before);
}

TEST_F(ControlCenterTest, HeadersLeaveNoObjectBehind) {
  launch();
  const std::size_t before = live();
  for (int i = 0; i < 1000; ++i) {
    const objc::AutoreleasePool pool;
    const auto made = objc::adopt(send<Object, "new">(objc_getClass("MRUNowPlayingHeaderView")));
    send<void, "setLayout:">(made.get(), 2L);
    send<void, "layoutIfNeeded">(made.get());
  }
  EXPECT_EQ(live(), before);
}

TEST_F(ControlCenterTest, DoesNotWatchThePlayerWhileItIsClosed) {
  launch();
  playTracks();
  openAndClose();
  EXPECT_EQ(sim::runtime::liveInstanceCount(objc_getClass("MRUNowPlayingViewController")), 0U);
  AudioSystem::current().setVolume(0.25F);
  Player::current().nextTrack();
  advance(5);
}

// A phone without one of the classes lacks what needs it, and nothing else.
class WithoutAClass : public ControlCenterTest, public testing::WithParamInterface<const char*> {};

TEST_P(WithoutAClass, OpensAndCloses) {
  phone.setup.missingClasses.insert(GetParam());
  launch();
  playTracks();
  openControlCenter();
  advance(0);
  send<void, "expandModule">(moduleContainer(std::string(nowPlayingModule)));
  advance(0);
  send<void, "didSelectRoutingButton:">(player(), nullptr);
  advance(2);
  Player::current().nextTrack();
  AudioSystem::current().setVolume(0.25F);
  advance(2);
  closeControlCenter();
  EXPECT_FALSE(openedControlCenter());
}

INSTANTIATE_TEST_SUITE_P(Classes, WithoutAClass,
                         testing::Values("MRUNowPlayingHeaderView", "MRUNowPlayingRoutingButton",
                                         "MRUNowPlayingView", "MRUNowPlayingViewController",
                                         "MRUControlCenterViewController", "MRUEmbeddingView",
                                         "MPButton", "MRURoutingViewController",
                                         "CCUIContentModuleContainerViewController", "UIControl",
                                         "UILabel", "UISlider", "UIView", "UIViewController",
                                         "UIWindow", "CALayer", "CAShapeLayer", "CGPath", "UIColor",
                                         "UIFont", "NSNotificationCenter"),
                         [](const auto& test) { return std::string(test.param); });

}  // namespace
}  // namespace sim
