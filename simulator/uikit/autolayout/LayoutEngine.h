// Moves views as their constraints say.
//
// A tree of views is solved as a whole when something of it has changed and its layout is due.
// Views that constraints do not place, and the root, are constants, wherever they stand; their
// autoresizing masks are followed as ever. What is solved is kept with each view and put into
// effect by its superview's -layoutSubviews, as on the platform.
#pragma once

#include "objc/Object.h"

namespace sim {

// The solution of the view's tree fits no more. The next layout pass makes another.
void constraintsChanged(objc::Object view);
// The view has been moved or resized: matters when a solution was made from where it stood.
void geometryChanged(objc::Object view);
// What -intrinsicContentSize will answer is different.
void contentSizeChanged(objc::Object view);

// Makes a new solution when the view's tree needs one, and tells the superviews of all views that
// will move that they need layout.
void solveIfNeeded(objc::Object view);
// Puts the solution into effect for the view's subviews.
void placeSubviews(objc::Object view);

}  // namespace sim
