#include "objc/Class.h"
#include "tests/uikit/UIKitTest.h"

namespace sim {
namespace {

std::vector<std::string> calls;

struct Tracker : objc::Implementation<Tracker> {
  void didLoad() { calls.push_back("loaded"); }
  void willAppear(bool) { calls.push_back("will appear"); }
  void didAppear(bool) { calls.push_back("did appear"); }
  void willDisappear(bool) { calls.push_back("will disappear"); }
  void didDisappear(bool) { calls.push_back("did disappear"); }
  static void registerClass() {
    objc::ClassBuilder<Tracker>("TrackingController", "UIViewController")
        .method<"viewDidLoad", &Tracker::didLoad>()
        .method<"viewWillAppear:", &Tracker::willAppear>()
        .method<"viewDidAppear:", &Tracker::didAppear>()
        .method<"viewWillDisappear:", &Tracker::willDisappear>()
        .method<"viewDidDisappear:", &Tracker::didDisappear>()
        .finish();
  }
};

using Calls = std::vector<std::string>;

class ViewControllers : public UIKitTest {
 protected:
  ViewControllers() {
    if (cls("TrackingController") == nullptr) Tracker::registerClass();
    calls.clear();
  }
  static Strong<Object> controller() {
    return objc::adopt(send<Object, "new">(cls("TrackingController")));
  }
  static Object presented(Object by) { return send<Object, "presentedViewController">(by); }
  static void present(Object on, Object controller) {
    send<void, "presentViewController:animated:completion:">(on, controller, true,
                                                             objc::Block<void()>(nullptr));
  }
};

TEST_F(ViewControllers, LoadTheirViewOnDemand) {
  const auto its = controller();
  EXPECT_FALSE((send<bool, "isViewLoaded">(its.get())));
  EXPECT_TRUE(calls.empty());
  const Object view = send<Object, "view">(its.get());
  EXPECT_EQ(frameOf(view), rect(0, 0, 390, 844));
  EXPECT_EQ((send<Object, "view">(its.get())), view);
  EXPECT_EQ(calls, Calls{"loaded"});
}

TEST_F(ViewControllers, AppearWithTheirView) {
  const auto window = shownWindow();
  const auto its = controller();
  const Object view = send<Object, "view">(its.get());
  add(window, view);
  EXPECT_EQ(calls, (Calls{"loaded", "will appear", "did appear"}));
  calls.clear();
  send<void, "removeFromSuperview">(view);
  EXPECT_EQ(calls, (Calls{"will disappear", "did disappear"}));
}

TEST_F(ViewControllers, ViewsFindTheirController) {
  const auto its = controller();
  const auto inner = make("UIView"), stray = make("UIView");
  add(send<Object, "view">(its.get()), inner);
  EXPECT_EQ((send<Object, "_viewControllerForAncestor">(inner.get())), its.get());
  EXPECT_FALSE((send<Object, "_viewControllerForAncestor">(stray.get())));
}

TEST_F(ViewControllers, HaveChildren) {
  const auto parent = controller(), child = controller();
  send<void, "addChildViewController:">(parent.get(), child.get());
  EXPECT_EQ((send<Object, "parentViewController">(child.get())), parent.get());
  send<void, "removeFromParentViewController">(child.get());
  EXPECT_FALSE((send<Object, "parentViewController">(child.get())));
  EXPECT_EQ((send<unsigned long, "count">(send<Object, "childViewControllers">(parent.get()))), 0U);
}

TEST_F(ViewControllers, PresentOthers) {
  const auto window = shownWindow();
  const auto root = controller(), over = controller();
  send<void, "setRootViewController:">(window.get(), root.get());
  double presentedAt = -1;
  const double start = seconds(phone.clock.uptime());
  const auto done = objc::block<void()>([&] { presentedAt = seconds(phone.clock.uptime()); });
  send<void, "presentViewController:animated:completion:">(root.get(), over.get(), true,
                                                           done.get());
  EXPECT_EQ(presented(root), over.get());
  EXPECT_EQ((send<Object, "presentingViewController">(over.get())), root.get());
  EXPECT_EQ((send<Object, "window">(send<Object, "view">(over.get()))), window.get());
  EXPECT_EQ(presentedAt, -1);
  advance(1);
  EXPECT_DOUBLE_EQ(presentedAt, start + 0.4);
  send<void, "dismissViewControllerAnimated:completion:">(over.get(), false,
                                                          objc::Block<void()>(nullptr));
  EXPECT_FALSE(presented(root));
  EXPECT_FALSE((send<Object, "superview">(send<Object, "view">(over.get()))));
}

TEST_F(ViewControllers, RefuseToPresentOutsideAWindowOrTwice) {
  const auto root = controller(), first = controller(), second = controller();
  present(root, first);
  EXPECT_FALSE(presented(root));
  const auto window = shownWindow();
  send<void, "setRootViewController:">(window.get(), root.get());
  present(root, first);
  present(root, second);
  EXPECT_EQ(presented(root), first.get());
  ASSERT_EQ(journal().size(), 2U);
  EXPECT_NE(journal()[0].find("not in the window hierarchy"), std::string::npos);
  EXPECT_NE(journal()[1].find("already presenting"), std::string::npos);
  send<void, "dismissViewControllerAnimated:completion:">(root.get(), false,
                                                          objc::Block<void()>(nullptr));
}

TEST_F(ViewControllers, WhatIsPresentedKeepsTheWindowBeforeIOS13) {
  const std::string version = std::exchange(phone.setup.systemVersion, "12.4");
  const auto over = controller();
  {
    const auto window = shownWindow();
    const auto root = controller();
    send<void, "setRootViewController:">(window.get(), root.get());
    present(root, over);
  }
  const Object presenting = send<Object, "presentingViewController">(over.get());
  EXPECT_TRUE(presenting);
  send<void, "dismissViewControllerAnimated:completion:">(over.get(), false,
                                                          objc::Block<void()>(nullptr));
  EXPECT_FALSE((send<Object, "presentingViewController">(over.get())));
  phone.setup.systemVersion = version;
}

TEST_F(ViewControllers, SinceThenNobodyHoldsIt) {
  const auto over = controller();
  {
    const objc::AutoreleasePool pool;
    const auto window = shownWindow();
    const auto root = controller();
    send<void, "setRootViewController:">(window.get(), root.get());
    present(root, over);
  }
  EXPECT_FALSE((send<Object, "presentingViewController">(over.get())));
}

}  // namespace
}  // namespace sim
