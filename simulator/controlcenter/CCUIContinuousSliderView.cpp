#include "simulator/controlcenter/CCUIContinuousSliderView.h"

#include <algorithm>

#include "simulator/standin/StandIn.h"
#include "simulator/uikit/controls/UIControl.h"
#include "simulator/uikit/controls/UISlider.h"
#include "simulator/uikit/touches/UITouch.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {

using objc::Object;
using Slider = CCUIContinuousSliderView;

void Slider::layoutSubviews() {
  super<void, "layoutSubviews">();
  const UISlider& slider = UISlider::of(self());
  const CGSize size = sizeOf(Object(self()));
  const double height = size.height * slider.partAt(slider.value);
  setAlpha(slider.track, 0);
  setFrame(slider.filled, {{0, size.height - height}, {size.width, height}});
  fill(slider.filled, whiteColor(0.9));
}

double Slider::fingerAt(Object touch) const {
  return UITouch::of(touch).locationInView(Object(self())).y;
}

bool Slider::beginTracking(Object touch, Object event) {
  heldFrom_ = UISlider::of(self()).value;
  fingerFrom_ = fingerAt(touch);
  return super<bool, "beginTrackingWithTouch:withEvent:">(touch, event);
}

bool Slider::continueTracking(Object touch, Object) {
  const double height = sizeOf(Object(self())).height;
  if (height <= 0) return true;
  const auto kept = objc::retain(Object(self()));
  const double way = (fingerFrom_ - fingerAt(touch)) / height;
  const auto to = float(std::clamp(double(heldFrom_) + way, 0.0, 1.0));
  if (to == UISlider::of(self()).value) return true;
  objc::send<void, "setValue:">(self(), to);
  UIControl::of(self()).sendActionsForEvents(UIControl::valueChanged, nullptr);
  return true;
}

void Slider::registerClass() {
  StandIn<Slider>("ControlCenterUIKit", "CCUIContinuousSliderView", "UISlider")
      .partial<"layoutSubviews", &Slider::layoutSubviews>(
          "a slider of the system's own, where a phone has one for Control Center alone")
      .method<"beginTrackingWithTouch:withEvent:", &Slider::beginTracking>()
      .method<"continueTrackingWithTouch:withEvent:", &Slider::continueTracking>()
      .finish();
}

}  // namespace sim
