#include "objc/Class.h"
#include "tests/uikit/UIKitTest.h"

namespace sim {
namespace {

std::vector<std::string> layouts;

struct CountingView : objc::Implementation<CountingView> {
  void layoutSubviews() {
    super<void, "layoutSubviews">();
    layouts.push_back("layout");
  }
  static void registerClass() {
    objc::ClassBuilder<CountingView>("CountingView", "UIView")
        .method<"layoutSubviews", &CountingView::layoutSubviews>()
        .finish();
  }
};

struct CountingController : objc::Implementation<CountingController> {
  void will() { layouts.push_back("will"); }
  void did() { layouts.push_back("did"); }
  static void registerClass() {
    objc::ClassBuilder<CountingController>("CountingController", "UIViewController")
        .method<"viewWillLayoutSubviews", &CountingController::will>()
        .method<"viewDidLayoutSubviews", &CountingController::did>()
        .finish();
  }
};

using Calls = std::vector<std::string>;

class Layout : public UIKitTest {
 protected:
  Layout() {
    if (cls("CountingView") == nullptr) CountingView::registerClass();
    if (cls("CountingController") == nullptr) CountingController::registerClass();
    layouts.clear();
  }
};

TEST_F(Layout, RunsOnceAfterWhatAskedForIt) {
  const auto window = shownWindow();
  const auto view = make("CountingView", rect(0, 0, 10, 10));
  add(window, view);
  EXPECT_TRUE(layouts.empty());
  advance(0);
  EXPECT_EQ(layouts, Calls{"layout"});
  send<void, "setNeedsLayout">(view.get());
  send<void, "setFrame:">(view.get(), rect(0, 0, 20, 10));
  advance(0);
  EXPECT_EQ(layouts.size(), 2U);
  send<void, "setFrame:">(view.get(), rect(5, 5, 20, 10));  // only moved
  advance(1);
  EXPECT_EQ(layouts.size(), 2U);
}

TEST_F(Layout, WaitsForAWindow) {
  const auto view = make("CountingView", rect(0, 0, 10, 10));
  advance(1);
  EXPECT_TRUE(layouts.empty());
  send<void, "layoutIfNeeded">(view.get());
  send<void, "layoutIfNeeded">(view.get());
  EXPECT_EQ(layouts, Calls{"layout"});
}

TEST_F(Layout, NewTextMovesNoSuperview) {
  const auto window = shownWindow();
  const auto view = make("CountingView", rect(0, 0, 10, 10));
  const auto label = make("UILabel");
  add(view, label);
  add(window, view);
  advance(0);
  EXPECT_EQ(layouts.size(), 1U);
  send<void, "setText:">(label.get(), string("7"));
  send<void, "setHidden:">(label.get(), true);
  advance(0);
  EXPECT_EQ(layouts.size(), 1U);
}

TEST_F(Layout, HiddenWindowsAreLeftAlone) {
  const auto window = make("UIWindow", rect(0, 0, 390, 844));
  const auto view = make("CountingView", rect(0, 0, 10, 10));
  add(window, view);
  advance(1);
  EXPECT_TRUE(layouts.empty());
  send<void, "makeKeyAndVisible">(window.get());
  advance(0);
  EXPECT_EQ(layouts, Calls{"layout"});
}

TEST_F(Layout, TheControllerIsAskedBeforeAndAfter) {
  const auto window = make("UIWindow", rect(0, 0, 390, 844));
  const auto controller = objc::adopt(send<Object, "new">(cls("CountingController")));
  const auto view = make("CountingView", rect(0, 0, 1, 1));
  send<void, "setView:">(controller.get(), view.get());
  send<void, "setRootViewController:">(window.get(), controller.get());
  send<void, "makeKeyAndVisible">(window.get());
  advance(0);
  EXPECT_EQ(layouts, (Calls{"will", "layout", "did"}));
  EXPECT_EQ(frameOf(view), rect(0, 0, 390, 844));
  send<void, "layoutSubviews">(view.get());  // by hand, it is the view's alone
  EXPECT_EQ(layouts.size(), 4U);
}

}  // namespace
}  // namespace sim
