// A finger on the screen.
#pragma once

#include "objc/Object.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

// The view that a touch at that point of the screen is for: the uppermost window's that takes it;
// nil for none.
objc::Object viewOnScreenAt(CGPoint point);

// The view that a touch at that point of the view's coordinates is for: in the uppermost window
// that takes it, or, where the view is in no window, in the view's own tree. nil for none.
objc::Object viewTouchedAt(objc::Object view, CGPoint point);

// Whether a touch that reached `hit` is one of the view: of a part of it, or of the control that
// it is a part of.
bool touchIsFor(objc::Object view, objc::Object hit);

// The control that tracks a touch of that view, nil for none.
objc::Object controlTracking(objc::Object hit);

// Finger down and up again inside the control, which must be enabled.
void tapControl(objc::Object control);

}  // namespace sim
