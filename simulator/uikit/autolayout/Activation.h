// Constraints in force: each is owned by one view, the nearest one around its items.
#pragma once

#include "objc/Object.h"

namespace sim {

// The view owns the constraint from now on. One that is in force elsewhere is there no more; nil
// and one that is there already change nothing.
void addConstraint(objc::Object view, objc::Object constraint);
// Nothing where another view owns it.
void removeConstraint(objc::Object view, objc::Object constraint);

// Adds it to, or takes it from, the view that ought to own it.
void setConstraintActive(objc::Object constraint, bool active);

// Before the view leaves its superview: those that tie it, or what is in it, to what is outside
// end.
void dropConstraintsAcross(objc::Object view);

}  // namespace sim
