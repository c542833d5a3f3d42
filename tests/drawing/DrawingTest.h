// Views that are looked at.
#pragma once

#include "simulator/drawing/SceneBuilder.h"
#include "tests/uikit/UIKitTest.h"

namespace sim {

class DrawingTest : public UIKitTest {
 protected:
  DrawingTest() { drawTransitions(); }

  // What is seen of a view at this moment.
  scene::Node drawn(Object view) const {
    return sceneOf(CALayer::of(send<Object, "layer">(view)), phone.clock.uptime());
  }
  void animate(double duration, const std::function<void()>& changes, unsigned long options = 0,
               double delay = 0) const {
    const auto block = objc::block<void()>([&changes] { changes(); });
    send<void, "animateWithDuration:delay:options:animations:completion:">(
        cls("UIView"), duration, delay, options, block.get(), objc::Block<void(bool)>(nullptr));
  }
};

// One view, that the test moves; out of windows nothing does.
class MovementTest : public DrawingTest {
 protected:
  void SetUp() override {
    DrawingTest::SetUp();
    window = shownWindow();
    view = make("UIView", rect(0, 0, 100, 100));
    add(window, view);
  }
  void TearDown() override {
    view = window = nullptr;
    DrawingTest::TearDown();
  }

  Strong<Object> window, view;
};

inline Object color(double red, double green, double blue, double alpha = 1) {
  return send<Object, "colorWithRed:green:blue:alpha:">(cls("UIColor"), red, green, blue, alpha);
}

inline constexpr unsigned long linear = 3 << 16;  // of the animation options

}  // namespace sim
