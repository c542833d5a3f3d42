#include "simulator/uikit/pickers/PickerTouches.h"

#include <cmath>

#include "objc/Message.h"
#include "simulator/foundation/Kind.h"
#include "simulator/uikit/pickers/UIDatePicker.h"
#include "simulator/uikit/pickers/UIPickerColumnView.h"
#include "simulator/uikit/pickers/UIPickerView.h"
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

UIPickerColumnView* heldWheel(Object picker) {
  for (const auto& child : UIView::of(picker).children)
    if (auto* wheel = stateOf<UIPickerColumnView>(child.get()); wheel && wheel->isHeld())
      return wheel;
  return nullptr;
}

CGPoint placeOn(const UIPickerColumnView& wheel, Object touches) {
  const Object touch = objc::send<Object, "anyObject">(touches);
  return UITouch::of(touch).locationInView(Object(wheel.self()));
}

}  // namespace

UIPickerColumnView* wheelTouchedAt(Object view, CGPoint point) {
  const Object picker = pickerOf(view);
  if (!picker) return nullptr;
  UIPickerColumnView* nearest = nullptr;
  double least = 0;
  for (const auto& child : UIView::of(picker).children) {
    auto* wheel = stateOf<UIPickerColumnView>(child.get());
    if (wheel == nullptr) continue;
    const double middle = UIView::of(child.get()).geometry().bounds.size.width / 2;
    const double away = std::abs(fromRoot(child.get(), point).x - middle);
    if (nearest != nullptr && away >= least) continue;
    nearest = wheel;
    least = away;
  }
  return nearest;
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
