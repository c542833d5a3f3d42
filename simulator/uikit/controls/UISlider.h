#pragma once

#include <optional>

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"
#include "simulator/machine/RunLoopMode.h"

namespace sim {

struct UISlider : objc::Implementation<UISlider> {
  float minimumValue = 0;
  float maximumValue = 1;
  float value = 0;
  objc::Strong<objc::Object> track;
  objc::Strong<objc::Object> filled;
  bool goesUp = false;  // its values grow to the top, else to the right

  objc::Object initWithFrame(CGRect frame);
  void setValue(float to);  // held to the limits; no action is sent
  void setValueAnimated(float to, bool animated);
  void layoutSubviews();
  // The knob follows the finger's way, wherever on the slider it came down.
  bool beginTracking(objc::Object touch, objc::Object event);
  bool continueTracking(objc::Object touch, objc::Object event);
  void endTracking(objc::Object, objc::Object) { tracking_.reset(); }
  void cancelTracking(objc::Object) { tracking_.reset(); }
  // By a mouse's wheel or a key: so many twentieths of the way down.
  void turnBy(long steps);
  // How much of its length the knob has behind it, for that value.
  double partAt(float at) const;
  // Where a finger finds the knob, in the slider's own coordinates, and where it leaves it for a
  // value.
  CGPoint knob() const;
  CGPoint knobAt(float to) const;

  static void registerClass();

 private:
  void slideTo(float to);  // by hand: its actions are sent
  double length() const;
  double placeOf(objc::Object touch) const;  // along the slider

  std::optional<Tracking> tracking_;
  float heldFrom_ = 0;     // the value when a finger came down
  double fingerFrom_ = 0;  // and where that was, along the slider
};

}  // namespace sim
