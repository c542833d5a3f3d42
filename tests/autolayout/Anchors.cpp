#include "tests/autolayout/LayoutTest.h"

namespace sim {
namespace {

class Anchors : public LayoutTest {
 protected:
  void SetUp() override {
    LayoutTest::SetUp();
    window = shownWindow();
    view = child(window);
  }
  void TearDown() override {
    view = window = {};
    LayoutTest::TearDown();
  }
  static void activate(Object constraint) { send<void, "setActive:">(constraint, true); }

  Strong<Object> view;
};

TEST_F(Anchors, MakeConstraintsBetweenViews) {
  activate(send<Object, "constraintEqualToAnchor:constant:">(
      send<Object, "leadingAnchor">(view.get()), send<Object, "leadingAnchor">(window.get()),
      20.0));
  activate(send<Object, "constraintEqualToAnchor:">(send<Object, "bottomAnchor">(view.get()),
                                                    send<Object, "centerYAnchor">(window.get())));
  activate(send<Object, "constraintEqualToAnchor:multiplier:">(
      send<Object, "widthAnchor">(view.get()), send<Object, "widthAnchor">(window.get()), 0.5));
  activate(
      send<Object, "constraintEqualToConstant:">(send<Object, "heightAnchor">(view.get()), 40.0));
  EXPECT_EQ(laidOut(view), rect(20, 382, 195, 40));
}

TEST_F(Anchors, MakeInequalities) {
  const Object widths = send<Object, "widthAnchor">(view.get());
  activate(send<Object, "constraintGreaterThanOrEqualToConstant:">(widths, 50.0));
  activate(send<Object, "constraintLessThanOrEqualToAnchor:multiplier:constant:">(
      send<Object, "heightAnchor">(view.get()), widths, 0.5, 5.0));
  height(view, 100, 999);
  EXPECT_EQ(laidOut(view).size, (CGSize{190, 100}));
  width(view, 60);
  EXPECT_EQ(laidOut(view).size, (CGSize{60, 35}));
}

TEST_F(Anchors, KindsDoNotMix) {
  EXPECT_DEATH((send<Object, "constraintEqualToAnchor:">(send<Object, "topAnchor">(view.get()),
                                                         send<Object, "leftAnchor">(view.get()))),
               "NSInvalidArgumentException.*NSLayoutYAxisAnchor and NSLayoutXAxisAnchor");
}

}  // namespace
}  // namespace sim
