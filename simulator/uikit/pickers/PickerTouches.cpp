#include "simulator/uikit/pickers/PickerTouches.h"

#include <cmath>
#include <vector>

#include "objc/Message.h"
#include "simulator/foundation/Kind.h"
#include "simulator/uikit/controls/UIControl.h"
#include "simulator/uikit/pickers/UIDatePicker.h"
#include "simulator/uikit/pickers/UIPickerColumnView.h"
#include "simulator/uikit/pickers/UIPickerView.h"
#include "simulator/uikit/touches/Touch.h"
#include "simulator/uikit/touches/UITouch.h"
#include "simulator/uikit/views/UIView.h"
#include "simulator/uikit/views/ViewTree.h"

namespace sim {
namespace {

using objc::Object;

Object pickerOf(Object view) {
  while (view && !isA<UIPickerView>(view) && !isA<UIDatePicker>(view))
    view = UIView::of(view).parent;
  return view;
}

std::vector<UIPickerColumnView*> wheelsOf(Object picker) {
  std::vector<UIPickerColumnView*> wheels;
  for (const auto& child : UIView::of(picker).children)
    if (auto* wheel = stateOf<UIPickerColumnView>(child.get())) wheels.push_back(wheel);
  return wheels;
}

UIPickerColumnView* heldWheel(Object picker) {
  for (UIPickerColumnView* wheel : wheelsOf(picker))
    if (wheel->isHeld()) return wheel;
  return nullptr;
}

CGPoint placeOn(const UIPickerColumnView& wheel, Object touches) {
  const Object touch = objc::send<Object, "anyObject">(touches);
  return UITouch::of(touch).locationInView(Object(wheel.self()));
}

}  // namespace

UIPickerColumnView* wheelTouchedAt(Object view, CGPoint point) {
  const Object picker = pickerOf(view);
  const UIControl* control = stateOf<UIControl>(picker);
  if (!picker || (control != nullptr && !control->enabled)) return nullptr;
  UIPickerColumnView* nearest = nullptr;
  double least = 0;
  for (UIPickerColumnView* wheel : wheelsOf(picker)) {
    const Object its(wheel->self());
    const double away = std::abs(fromRoot(its, point).x - middleOf(its).x);
    if (nearest != nullptr && away >= least) continue;
    nearest = wheel;
    least = away;
  }
  return nearest;
}

CGPoint middleOfWheel(Object picker, long component) {
  const auto wheels = wheelsOf(picker);
  if (std::size_t(component) >= wheels.size()) return middleOf(picker);
  const Object wheel(wheels[std::size_t(component)]->self());
  return UIView::of(wheel).geometry().toSuperlayer(middleOf(wheel));
}

void pickerTouchBegan(Object picker, Object touches, Object) {
  const Object touch = objc::send<Object, "anyObject">(touches);
  UIPickerColumnView* wheel = wheelTouchedAt(picker, UITouch::of(touch).place);
  if (wheel != nullptr) wheel->touchBegan(placeOn(*wheel, touches));
}
void pickerTouchMoved(Object picker, Object touches, Object) {
  if (auto* wheel = heldWheel(picker)) wheel->touchMoved(placeOn(*wheel, touches));
}
void pickerTouchEnded(Object picker, Object touches, Object) {
  if (auto* wheel = heldWheel(picker)) wheel->touchEnded(placeOn(*wheel, touches));
}
void pickerTouchCancelled(Object picker, Object, Object) {
  if (auto* wheel = heldWheel(picker)) wheel->touchCancelled();
}

}  // namespace sim
