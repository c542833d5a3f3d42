// What goes into the problem of a tree: by where it comes from.
#pragma once

#include "simulator/uikit/autolayout/LayoutProblem.h"

namespace sim {

// Stacks, then NSLayoutConstraints, then contents: what comes later breaks first.
void addAllConstraints(LayoutProblem& problem);

void addLayoutConstraint(LayoutProblem& problem, objc::Object constraint);
// Where a stack's arranged views stand.
void addStackConstraints(LayoutProblem& problem, objc::Object stack);
// The view hugs its content, and resists being compressed below it.
void addContentConstraints(LayoutProblem& problem, objc::Object view);

// Whether the view is known to have a content of the size that the last solution was made for: a
// label that counts down every second changes its digits, seldom its width.
bool isAsLargeAsBefore(objc::Object view);

// Measures the text again of several lines whose width the solution says. False when all heights
// were right.
bool wrapTexts(const LayoutProblem& problem, const Solution& solution);

}  // namespace sim
