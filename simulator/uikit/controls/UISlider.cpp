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

double UISlider::length() const {
  const CGSize size = UIView::of(self()).geometry().bounds.size;
  return goesUp ? size.height : size.width;
}

double UISlider::placeOf(Object touch) const {
  const CGPoint place = UITouch::of(touch).locationInView(Object(self()));
  return goesUp ? -place.y : place.x;
}

CGPoint UISlider::knob() const {
  const CGRect bounds = UIView::of(self()).geometry().bounds;
  const auto [x, y] = bounds.origin;
  // Its far edge belongs to it no longer.
  const double way = std::min(length() * partAt(value), length() - 1);
  if (goesUp) return {x + bounds.size.width / 2, y + length() - 1 - way};
  return {x + way, y + bounds.size.height / 2};
}

CGPoint UISlider::knobAt(float to) const {
  const CGPoint from = knob();
  const double way = length() * (partAt(to) - partAt(value));
  return goesUp ? CGPoint{from.x, from.y - way} : CGPoint{from.x + way, from.y};
}

void UISlider::slideTo(float to) {
  const auto kept = objc::retain(Object(self()));
  objc::send<void, "setValue:">(self(), to);
  UIControl::of(self()).sendActionsForEvents(UIControl::valueChanged, nullptr);
}

bool UISlider::beginTracking(Object touch, Object) {
  tracking_.emplace();
  heldFrom_ = value;
  fingerFrom_ = placeOf(touch);
  return true;
}

bool UISlider::continueTracking(Object touch, Object) {
  if (length() <= 0) return true;
  const double range = double(maximumValue) - double(minimumValue);
  const double way = placeOf(touch) - fingerFrom_;
  const auto to = float(double(heldFrom_) + way / length() * range);
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
