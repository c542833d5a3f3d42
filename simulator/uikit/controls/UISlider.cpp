#include "simulator/uikit/controls/UISlider.h"

#include <algorithm>
#include <cmath>

#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/controls/UIControl.h"
#include "simulator/uikit/touches/UITouch.h"
#include "simulator/uikit/views/UIView.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

constexpr double lineHeight = 6;  // points

objc::Strong<Object> addLine(Object slider, double alpha) {
  auto line = addView(slider, "UIView");
  fill(line, whiteColor(alpha), lineHeight / 2);
  objc::send<void, "setUserInteractionEnabled:">(line.get(), false);
  return line;
}

// "45%"
Object spokenPart(Object self) {
  const UISlider& slider = UISlider::of(self);
  const long percent = std::lround(slider.partAt(slider.value) * 100);
  return accessibilityValueOr(self.get(), string(std::to_string(percent) + '%'));
}
unsigned long sliderTraits(Object self) {
  return accessibilityTraitsOr(self.get(),
                               ViewAccessibility::adjustable | UIControl::of(self).stateTraits());
}
bool sliderIsElement(Object self) {
  return isAccessibilityElementOr(self.get(), true);
}

}  // namespace

Object UISlider::initWithFrame(CGRect frame) {
  const Object made = super<Object, "initWithFrame:">(frame);
  if (!made) return nullptr;
  track = addLine(made, 0.25);
  filled = addLine(made, 0.9);
  return made;
}

void UISlider::setValue(float to) {
  value = std::max(minimumValue, std::min(to, maximumValue));
  objc::send<void, "setNeedsLayout">(self());
}

void UISlider::setValueAnimated(float to, bool) {
  objc::send<void, "setValue:">(self(), to);
}

void UISlider::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGSize size = UIView::of(self()).geometry().bounds.size;
  const double y = (size.height - lineHeight) / 2;
  setFrame(track, {{0, y}, {size.width, lineHeight}});
  setFrame(filled, {{0, y}, {size.width * partAt(value), lineHeight}});
}

double UISlider::partAt(float at) const {
  const double range = double(maximumValue) - double(minimumValue);
  return range > 0 ? (double(at) - double(minimumValue)) / range : 0;
}

CGPoint UISlider::knob() const {
  const CGRect bounds = UIView::of(self()).geometry().bounds;
  const double way = std::min(bounds.size.width * partAt(value), bounds.size.width - 1);
  return {bounds.origin.x + way, bounds.origin.y + bounds.size.height / 2};
}

double UISlider::wayTo(float to) const {
  return UIView::of(self()).geometry().bounds.size.width * (partAt(to) - partAt(value));
}

void UISlider::slideTo(float to) {
  const auto kept = objc::retain(Object(self()));
  objc::send<void, "setValue:">(self(), to);
  UIControl::of(self()).sendActionsForEvents(UIControl::valueChanged, nullptr);
}

bool UISlider::beginTracking(Object touch, Object) {
  tracking_.emplace();
  heldFrom_ = value;
  fingerFrom_ = UITouch::of(touch).locationInView(Object(self())).x;
  return true;
}

bool UISlider::continueTracking(Object touch, Object) {
  const double width = UIView::of(self()).geometry().bounds.size.width;
  const double range = double(maximumValue) - double(minimumValue);
  const double way = UITouch::of(touch).locationInView(Object(self())).x - fingerFrom_;
  if (width <= 0) return true;
  const auto to = float(double(heldFrom_) + way / width * range);
  if (std::clamp(to, minimumValue, maximumValue) != value) slideTo(to);
  return true;
}

void UISlider::turnBy(long steps) {
  constexpr double step = 0.05;
  const double range = double(maximumValue) - double(minimumValue);
  slideTo(float(double(value) - double(steps) * step * range));
}

void UISlider::registerClass() {
  StandIn<UISlider>("UIKit", "UISlider", "UIControl")
      .method<"initWithFrame:", &UISlider::initWithFrame>()
      .property<"minimumValue", &UISlider::minimumValue>()
      .property<"maximumValue", &UISlider::maximumValue>()
      .readonlyProperty<"value", &UISlider::value>()
      .method<"setValue:", &UISlider::setValue>()
      .partial<"setValue:animated:", &UISlider::setValueAnimated>("in place at once")
      .method<"accessibilityValue", &spokenPart>()
      .method<"accessibilityTraits", &sliderTraits>()
      .method<"isAccessibilityElement", &sliderIsElement>()
      .method<"layoutSubviews", &UISlider::layoutSubviews>()
      .method<"beginTrackingWithTouch:withEvent:", &UISlider::beginTracking>()
      .method<"continueTrackingWithTouch:withEvent:", &UISlider::continueTracking>()
      .method<"endTrackingWithTouch:withEvent:", &UISlider::endTracking>()
      .method<"cancelTrackingWithEvent:", &UISlider::cancelTracking>()
      .finish();
}

}  // namespace sim
