#include "simulator/preferences/TapArea.h"

#include <cmath>
#include <utility>

#include "simulator/standin/StandIn.h"
#include "simulator/uikit/controls/UIControl.h"
#include "simulator/uikit/touches/UITouch.h"

namespace sim {
namespace {

using objc::Object;

constexpr double tapWay = 8;  // points that a finger may tremble in a tap

double heightOnScreen(Object touch) {
  return UITouch::of(touch).locationInView(nullptr).y;
}

}  // namespace

void TapArea::onTap(std::function<void()> does) {
  const bool isFirst = !std::exchange(tapped_, std::move(does));
  if (isFirst)
    UIControl::of(self()).addTarget(Object(self()), objc::selector<"_tap">(),
                                    UIControl::touchUpInside);
}

bool TapArea::beginTracking(Object touch, Object) {
  fingerAt_ = heightOnScreen(touch);
  way_ = 0;
  isDrag_ = false;
  return true;
}

bool TapArea::continueTracking(Object touch, Object) {
  const double way = heightOnScreen(touch) - std::exchange(fingerAt_, heightOnScreen(touch));
  way_ += way;
  isDrag_ = isDrag_ || std::abs(way_) > tapWay;
  if (isDrag_ && dragged) dragged(way);
  return true;
}

// What it does may take this view away.
void TapArea::tap() {
  if (std::exchange(isDrag_, false)) return;
  const auto does = tapped_;
  if (does) does();
}

void TapArea::registerClass() {
  StandIn<TapArea>("Preferences", "_SettingsTapArea", "UIControl")
      .method<"beginTrackingWithTouch:withEvent:", &TapArea::beginTracking>()
      .method<"continueTrackingWithTouch:withEvent:", &TapArea::continueTracking>()
      .method<"_tap", &TapArea::tap>()
      .finish();
}

}  // namespace sim
