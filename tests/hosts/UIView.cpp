#include "simulator/coregraphics/Geometry.h"
#include "simulator/runtime/LiveObjects.h"
#include "tests/hosts/TestHost.h"

namespace sim {
namespace {

class UIViewTest : public TestHost {
 protected:
  UIViewTest() { boot(); }

  static objc::Strong<objc::Object> make() {
    return objc::adopt(objc::send<objc::Object, "new">(objc_getClass("UIView")));
  }
  static void add(objc::Object parent, objc::Object child) {
    objc::send<void, "addSubview:">(parent, child);
  }
  static objc::Object superview(objc::Object view) {
    return objc::send<objc::Object, "superview">(view);
  }
  static unsigned long subviewCount(objc::Object view) {
    return objc::send<unsigned long, "count">(objc::send<objc::Object, "subviews">(view));
  }
};

TEST_F(UIViewTest, HasAFrame) {
  const CGRect frame = {{1, 2}, {3, 4}};
  const auto view = objc::adopt(
      objc::send<objc::Object, "initWithFrame:">(objc_alloc(objc_getClass("UIButton")), frame));
  EXPECT_EQ((objc::send<CGRect, "frame">(view.get())), frame);
  EXPECT_EQ((objc::send<CGRect, "bounds">(view.get())), (CGRect{{0, 0}, {3, 4}}));
  objc::send<void, "setFrame:">(view.get(), CGRect());
  EXPECT_EQ((objc::send<CGRect, "frame">(view.get())), CGRect());
}

TEST_F(UIViewTest, MovesFromParentToParent) {
  const auto first = make();
  const auto second = make();
  const auto child = make();
  add(first.get(), child.get());
  EXPECT_EQ(superview(child.get()), first.get());
  add(second.get(), child.get());
  EXPECT_EQ(superview(child.get()), second.get());
  EXPECT_EQ(subviewCount(first.get()), 0U);
  EXPECT_EQ(subviewCount(second.get()), 1U);
  objc::send<void, "removeFromSuperview">(child.get());
  EXPECT_FALSE(superview(child.get()));
  EXPECT_EQ(subviewCount(second.get()), 0U);
}

TEST_F(UIViewTest, OwnsItsSubviewsAndLetsThemGo) {
  const auto survivor = make();
  {
    const objc::AutoreleasePool pool;
    const auto parent = make();
    add(parent.get(), survivor.get());
    add(parent.get(), make().get());
    EXPECT_EQ(sim::runtime::liveInstanceCount(objc_getClass("UIView")), 3U);
  }
  EXPECT_EQ(sim::runtime::liveInstanceCount(objc_getClass("UIView")), 1U);
  EXPECT_FALSE(superview(survivor.get()));
}

TEST_F(UIViewTest, CanBeHidden) {
  const auto view = make();
  EXPECT_FALSE((objc::send<bool, "isHidden">(view.get())));
  objc::send<void, "setHidden:">(view.get(), true);
  EXPECT_TRUE((objc::send<bool, "isHidden">(view.get())));
}

}  // namespace
}  // namespace sim
