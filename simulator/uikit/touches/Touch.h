// What a finger at a point touches.
#pragma once

#include <stdexcept>
#include <string>

#include "objc/Object.h"
#include "simulator/coregraphics/Geometry.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {

// A person cannot touch what a script names: why, and what is touched instead.
class OutOfReach : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// While there is one, animated views count as touchable: for who asks what can be reached in the
// end, such as a screen reader, to whom nothing vanishes for the time of an animation.
class AnimationsCountAsEnded {
 public:
  AnimationsCountAsEnded();
  ~AnimationsCountAsEnded();
  AnimationsCountAsEnded(const AnimationsCountAsEnded&) = delete;
  AnimationsCountAsEnded& operator=(const AnimationsCountAsEnded&) = delete;
};

// "is hidden" and the like of a view that takes no touches, nor do those that lie in it; nullptr
// for one that does.
const char* whyUntouchable(const UIView& view);

// The view that a touch at that point of the screen is for: the uppermost window's that takes it;
// nil for none.
objc::Object viewOnScreenAt(CGPoint point);

// The view that a touch at that point of the view's coordinates is for: in the uppermost window
// that takes it, or, where the view is in no window, in the view's own tree. nil for none.
objc::Object viewTouchedAt(objc::Object view, CGPoint point);

// Whether a touch that reached `hit` is one of the view: of a part of it, or of the control that
// it is a part of.
bool touchIsFor(objc::Object view, objc::Object hit);

// The first from that view up the responder chain that does something with touches: a control, or
// who handles them itself. nil for none.
objc::Object responderToTouch(objc::Object hit);

// Whether it is for the methods that controls inherit to handle its touches.
bool isTrackedByUIControl(objc::Object responder);

// In the view's own coordinates.
CGPoint middleOf(objc::Object view);

// UIButton "Back"
std::string nameForPeople(objc::Object responder);

// Who takes a touch at that point of the view's coordinates: the view or one in it, or the control
// that it is a part of. Throws OutOfReach where that would be another, nobody who does anything
// with touches, or a control that is not enabled.
objc::Object responderTouchedAt(objc::Object view, CGPoint point);

}  // namespace sim
