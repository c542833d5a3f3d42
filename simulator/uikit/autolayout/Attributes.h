// NSLayoutAttribute: what constraints say something about.
#pragma once

#include "simulator/uikit/autolayout/LayoutProblem.h"

namespace sim {

namespace attribute {

constexpr long none = 0, left = 1, right = 2, top = 3, bottom = 4, leading = 5, trailing = 6,
               width = 7, height = 8, centerX = 9, centerY = 10, lastBaseline = 11,
               firstBaseline = 12, leftMargin = 13, rightMargin = 14, topMargin = 15,
               bottomMargin = 16, leadingMargin = 17, trailingMargin = 18,
               centerXWithinMargins = 19, centerYWithinMargins = 20;

const char* name(long attribute);  // "leading"
bool isLength(long attribute);     // width and height
// Leading and trailing edges and margins.
bool followsReadingDirection(long attribute);

}  // namespace attribute

// Left to right for whoever reads so; coordinates that run the other way are negative.
struct Space {
  objc::Object view;        // whose coordinates they are
  bool isMirrored = false;  // horizontally
};

// The coordinate or length of that attribute, in the coordinates of a view around it.
LinearExpression expressionOf(const LayoutProblem& problem, objc::Object view, long attribute,
                              const Space& space);

}  // namespace sim
