// The line at the top of the screen.
#include "simulator/springboard/StatusBar.h"

#include "simulator/springboard/StatusBarView.h"
#include "simulator/uikit/application/PreRender.h"
#include "simulator/uikit/application/UIWindow.h"
#include "simulator/uikit/views/UIView.h"
#include "tests/hosts/TestHost.h"

namespace sim {
namespace {

class StatusBar : public TestHost {
 protected:
  StatusBar() {
    boot();
    showStatusBar();
  }
  static StatusBarView& view() {
    const auto windows = UIWindow::visibleWindows();
    return StatusBarView::of(UIView::of(windows.back().get()).children.front().get());
  }
  static std::string seenTime() {
    runPreRenderHooks();
    return text(objc::send<objc::Object, "text">(view().time.get()));
  }
};

TEST_F(StatusBar, ShowsTheTimeOfTheOneWhoLooks) {
  EXPECT_EQ(seenTime(), "10:00");
  phone.queue.runUntil(nanoseconds(61));
  EXPECT_EQ(seenTime(), "10:01");
  phone.clock.setWall(phone.clock.wall() - 3600);
  EXPECT_EQ(seenTime(), "9:01");
}

TEST_F(StatusBar, WaitsForNothing) {
  EXPECT_EQ(seenTime(), "10:00");
  phone.queue.runDue();
  EXPECT_EQ(phone.queue.nextDue(), std::nullopt);
}

TEST_F(StatusBar, LeavesTheTimeToTheLockScreen) {
  setStatusBarShowsTime(false);
  EXPECT_TRUE(UIView::of(view().time.get()).isHidden());
  setStatusBarShowsTime(true);
  EXPECT_FALSE(UIView::of(view().time.get()).isHidden());
}

TEST_F(StatusBar, IsNoWindowOfTheApplication) {
  EXPECT_EQ(UIWindow::visibleWindows().size(), 1U);
  EXPECT_TRUE(UIWindow::applicationWindows().empty());
  EXPECT_FALSE(UIWindow::keyWindow());
}

}  // namespace
}  // namespace sim
