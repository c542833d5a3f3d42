#include "tests/autolayout/LayoutTest.h"

namespace sim {
namespace {

using namespace attribute;

// Says that it stands where its superview stands.
struct StubbornView : objc::Implementation<StubbornView> {
  CGRect frame() { return send<CGRect, "frame">(send<Object, "superview">(self())); }
  static void registerClass() {
    objc::ClassBuilder<StubbornView>("StubbornView", "UIView")
        .method<"frame", &StubbornView::frame>()
        .finish();
  }
};

class FixedViews : public LayoutTest {
 protected:
  FixedViews() {
    if (cls("StubbornView") == nullptr) StubbornView::registerClass();
  }
  void SetUp() override {
    LayoutTest::SetUp();
    window = shownWindow();
  }
  void TearDown() override {
    window = {};
    LayoutTest::TearDown();
  }
  // To all four edges.
  void fill(Object view, double inset) {
    const Object parent = send<Object, "superview">(view);
    constrain({view, left, equal, parent, left, 1, inset});
    constrain({view, top, equal, parent, top, 1, inset});
    constrain({parent, right, equal, view, right, 1, inset});
    constrain({parent, bottom, equal, view, bottom, 1, inset});
  }
};

TEST_F(FixedViews, FollowTheirMasksAndWhatIsInThemFollowsThem) {
  const auto outer = child(window);
  place(outer, 0, 0);
  const Object outerWidth = width(outer, 100);
  height(outer, 50);
  advance(0);
  const auto masked = make("UIView", rect(10, 0, 80, 50));
  send<void, "setAutoresizingMask:">(masked.get(), 2UL);
  add(outer, masked);
  const auto inner = child(masked);
  fill(inner, 5);
  EXPECT_EQ(laidOut(inner), rect(5, 5, 70, 40));
  send<void, "setConstant:">(outerWidth, 200.0);
  EXPECT_EQ(laidOut(masked), rect(10, 0, 180, 50));
  EXPECT_EQ(frameOf(inner), rect(5, 5, 170, 40));
}

TEST_F(FixedViews, AreAskedForNoFrame) {
  const auto outer = make("UIView", rect(100, 100, 300, 200));
  const auto stubborn = make("StubbornView", rect(0, 0, 40, 40));
  add(window, outer);
  add(outer, stubborn);
  const auto inner = child(stubborn), beside = child(outer);
  fill(inner, 5);
  size(beside, 10, 10);
  constrain({beside, left, equal, stubborn, right});
  constrain({beside, top, equal, stubborn, bottom});
  EXPECT_EQ(laidOut(inner), rect(5, 5, 30, 30));
  EXPECT_EQ(frameOf(beside), rect(40, 40, 10, 10));
}

TEST_F(FixedViews, TheSameHoldsForViewsThatConstraintsPlace) {
  const auto stubborn = child(window, "StubbornView");
  size(stubborn, 40, 40);
  place(stubborn, 10, 10);
  const auto inner = child(stubborn);
  fill(inner, 5);
  EXPECT_EQ(laidOut(inner), rect(5, 5, 30, 30));
  EXPECT_EQ((send<CGPoint, "center">(stubborn.get())), (CGPoint{30, 30}));
}

TEST_F(FixedViews, TransformsChangeNothing) {
  const auto view = child(window);
  size(view, 40, 40);
  place(view, 10, 10);
  const auto inner = child(view);
  fill(inner, 5);
  send<void, "setTransform:">(view.get(), CGAffineTransform{0.5, 0, 0, 0.5, 0, 0});
  EXPECT_EQ(laidOut(inner), rect(5, 5, 30, 30));
  EXPECT_EQ((send<CGRect, "bounds">(view.get())), rect(0, 0, 40, 40));
  EXPECT_EQ(frameOf(view), rect(20, 20, 20, 20));
}

TEST_F(FixedViews, TurningTranslationOffLetsConstraintsPlaceAView) {
  const auto view = make("UIView", rect(50, 50, 20, 20));
  add(window, view);
  EXPECT_TRUE((send<bool, "translatesAutoresizingMaskIntoConstraints">(view.get())));
  EXPECT_EQ(laidOut(view), rect(50, 50, 20, 20));
  send<void, "setTranslatesAutoresizingMaskIntoConstraints:">(view.get(), false);
  place(view, 7, 8);
  size(view, 9, 10);
  EXPECT_EQ(laidOut(view), rect(7, 8, 9, 10));
}

// The screen has three to a point; edges are rounded, so neighbours touch.
TEST_F(FixedViews, EdgesFallOnWholePixels) {
  const auto a = child(window), b = child(window);
  place(a, 0, 0);
  size(a, 33.4, 10.17);
  constrain({b, left, equal, a, right});
  constrain({b, top, equal, a, top});
  size(b, 33.4, 10.16);
  EXPECT_TRUE(isAbout(laidOut(a), rect(0, 0, 33 + 1.0 / 3, 10 + 1.0 / 3)));
  EXPECT_TRUE(isAbout(frameOf(b), rect(33 + 1.0 / 3, 0, 33 + 1.0 / 3, 10)));
}

TEST_F(FixedViews, AnEmptyViewIsNoReasonToComplain) {
  const auto outer = make("UIView", rect(0, 0, 100, -50));
  add(window, outer);
  const auto inner = child(outer);
  constrain({inner, top, equal, outer, top});
  constrain({inner, bottom, equal, outer, bottom});
  constrain({inner, left, equal, outer, left});
  EXPECT_EQ(laidOut(inner).size.height, 0);
  EXPECT_TRUE(journal().empty());
}

}  // namespace
}  // namespace sim
