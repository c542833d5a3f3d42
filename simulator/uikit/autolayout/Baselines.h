// Where the text of a view stands.
#pragma once

#include "simulator/uikit/autolayout/Attributes.h"

namespace sim {

// Of the first or the last line: `attribute` says which. Views without text have theirs at the top
// and the bottom.
LinearExpression baseline(const LayoutProblem& problem, objc::Object view, long attribute,
                          const Space& space);

}  // namespace sim
