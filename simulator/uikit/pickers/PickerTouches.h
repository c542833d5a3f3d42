// How pickers follow a finger: it turns the wheel that is nearest to where it came down.
#pragma once

#include "simulator/coregraphics/Geometry.h"
#include "simulator/standin/StandIn.h"

namespace sim {

struct UIPickerColumnView;

// The nearest of the picker's wheels to a point of the screen; nullptr for a picker without wheels,
// for one that is not enabled, and for views that are none and lie in none.
UIPickerColumnView* wheelTouchedAt(objc::Object view, CGPoint point);

// In the picker's coordinates; its own middle while it has no such wheel.
CGPoint middleOfWheel(objc::Object picker, long component);

void pickerTouchBegan(objc::Object picker, objc::Object touches, objc::Object event);
void pickerTouchMoved(objc::Object picker, objc::Object touches, objc::Object event);
void pickerTouchEnded(objc::Object picker, objc::Object touches, objc::Object event);
void pickerTouchCancelled(objc::Object picker, objc::Object touches, objc::Object event);

template <class Picker>
void addPickerTouches(StandIn<Picker>& picker) {
  picker.template method<"touchesBegan:withEvent:", &pickerTouchBegan>()
      .template method<"touchesMoved:withEvent:", &pickerTouchMoved>()
      .template method<"touchesEnded:withEvent:", &pickerTouchEnded>()
      .template method<"touchesCancelled:withEvent:", &pickerTouchCancelled>();
}

}  // namespace sim
