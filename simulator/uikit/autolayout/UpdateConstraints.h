// -updateConstraints: before layout, views that asked for it change their constraints.
#pragma once

#include "objc/Object.h"

namespace sim {

void setNeedsUpdateConstraints(objc::Object view);
// A view that has come into a window for the first time, if its class has an updateConstraints of
// its own, needs it, too.
void viewDidMoveToWindow(objc::Object view);
bool needsUpdateConstraints(objc::Object view);
// In the view's tree below it, subviews first.
void updateConstraintsIfNeeded(objc::Object view);

}  // namespace sim
