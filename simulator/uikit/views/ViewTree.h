// The tree of views, seen by UIKit itself: no message that a subclass could override is sent to
// find one's way in it.
#pragma once

#include <cstddef>

#include "simulator/uikit/views/UIView.h"

namespace sim {

// The tree's uppermost view, the view itself without a superview.
objc::Object rootOf(objc::Object view);
// nil when the root is no window.
objc::Object windowOf(objc::Object view);
// A view is a descendant of itself.
bool isDescendant(objc::Object view, objc::Object ancestor);

// The nearest view around both, which may be one of them. nil when they are in different trees.
objc::Object commonAncestor(objc::Object a, objc::Object b);

// Among the subviews; as many as there are for another's.
std::size_t indexOfSubview(objc::Object parent, objc::Object view);
// Moves the view from the superview that it has, telling everybody. An index past the end means
// on top. nil does nothing.
void insertSubview(objc::Object parent, objc::Object view, std::size_t index);
void removeFromSuperview(objc::Object view);

// Between the coordinates of a view and those of its root.
CGPoint toRoot(objc::Object view, CGPoint point);
CGPoint fromRoot(objc::Object view, CGPoint point);

// After a change of size: the subviews follow by their autoresizing masks.
void sizeChanged(objc::Object view, CGSize before);

}  // namespace sim
