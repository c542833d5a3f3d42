// NSLayoutConstraints as constraints of the problem.
#include "simulator/uikit/autolayout/Attributes.h"
#include "simulator/uikit/autolayout/Constraints.h"
#include "simulator/uikit/autolayout/NSLayoutConstraint.h"
#include "simulator/uikit/views/LayoutDirection.h"
#include "simulator/uikit/views/UIView.h"
#include "simulator/uikit/views/ViewTree.h"

namespace sim {
namespace {

using objc::Object;

// Where one reads from right to left, distances between leading and trailing edges are measured
// from the right.
Space spaceOf(const NSLayoutConstraint& constraint, Object first, Object second) {
  const Object common = second ? commonAncestor(first, second) : first;
  const bool follows = attribute::followsReadingDirection(constraint.firstAttribute) ||
                       attribute::followsReadingDirection(constraint.secondAttribute);
  return {common, follows && common && viewIsRightToLeft(common)};
}

Relation relationOf(long relation) {
  if (relation == 0) return Relation::equal;
  return relation < 0 ? Relation::atMost : Relation::atLeast;
}

}  // namespace

void addAllConstraints(LayoutProblem& problem) {
  for (const Object stack : problem.stacks()) addStackConstraints(problem, stack);
  for (const Object constraint : problem.constraints()) addLayoutConstraint(problem, constraint);
  for (const Object view : problem.placed()) addContentConstraints(problem, view);
}

// An item that has gone takes its constraints along.
void addLayoutConstraint(LayoutProblem& problem, Object constraint) {
  const NSLayoutConstraint& state = NSLayoutConstraint::of(constraint);
  const auto first = state.firstItem.load(), second = state.secondItem.load();
  if (!first || (!second && state.secondAttribute != attribute::none)) return;
  const Space space = spaceOf(state, first, second);
  if (!space.view || !isDescendant(space.view, problem.root())) return;
  LinearExpression left = expressionOf(problem, first, state.firstAttribute, space);
  if (second)
    left.add(expressionOf(problem, second, state.secondAttribute, space), -state.multiplier);
  left.constant -= state.constant;
  problem.add(std::move(left), relationOf(state.relation), double(state.priority),
              {constraint, "", first});
}

}  // namespace sim
