#include "simulator/uikit/autolayout/LayoutProblem.h"

#include <algorithm>
#include <utility>

#include "simulator/foundation/Kind.h"
#include "simulator/uikit/autolayout/NSLayoutConstraint.h"
#include "simulator/uikit/autolayout/ViewConstraints.h"
#include "simulator/uikit/views/UIStackView.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {
namespace {

using objc::Object;

// A solution's variables of one view: x, y, width, height.
constexpr int lengths = 2;

int firstVariable(Object view) {
  const ViewConstraints* constraints = existingConstraintsOf(view);
  return constraints == nullptr ? -1 : constraints->firstVariable;
}

// Where the view stands is a constant: it must be known when it moves.
const LayerGeometry& constant(Object view) {
  constraintsOf(view).isRead = true;
  return UIView::of(view).geometry();
}

double component(CGPoint point, Axis axis) {
  return axis == Axis::horizontal ? point.x : point.y;
}
double component(CGSize size, Axis axis) {
  return axis == Axis::horizontal ? size.width : size.height;
}

}  // namespace

LayoutProblem::LayoutProblem(Object root, Root kind) : root_(root) {
  if (ViewConstraints* its = existingConstraintsOf(root)) its->firstVariable = -1;
  if (kind == Root::fits) makeVariables(root);
  addTree(root);
  std::sort(constraints_.begin(), constraints_.end(), [](Object a, Object b) {
    return NSLayoutConstraint::of(a).activation < NSLayoutConstraint::of(b).activation;
  });
}

void LayoutProblem::collect(Object view) {
  if (const ViewConstraints* its = existingConstraintsOf(view))
    constraints_.insert(constraints_.end(), its->owned.begin(), its->owned.end());
  if (isA<UIStackView>(view)) stacks_.push_back(view);
}

void LayoutProblem::addTree(Object view) {
  collect(view);
  for (const auto& child : UIView::of(view).children) {
    if (isPlacedByConstraints(child)) {
      placed_.push_back(child);
      makeVariables(child);
    } else if (ViewConstraints* its = existingConstraintsOf(child)) {
      its->firstVariable = -1;
    }
    addTree(child);
  }
}

void LayoutProblem::makeVariables(Object view) {
  constraintsOf(view).firstVariable = problem_.position();
  problem_.position();
  problem_.length();
  problem_.length();
}

void LayoutProblem::add(LinearExpression left, Relation relation, double priority,
                        const Origin& origin) {
  if (priority <= 0) return;
  problem_.add(std::move(left), relation, priority);
  origins_.push_back(origin);
}

LinearExpression LayoutProblem::length(Object view, Axis axis) const {
  const int first = firstVariable(view);
  if (first >= 0) return LinearExpression::of(first + lengths + int(axis));
  return std::max(component(constant(view).bounds.size, axis), 0.0);
}

LinearExpression LayoutProblem::startInSuperview(Object view, Axis axis) const {
  const int first = firstVariable(view);
  if (first >= 0) return LinearExpression::of(first + int(axis));
  const LayerGeometry& geometry = constant(view);
  return component(geometry.position, axis) -
         component(geometry.anchorPoint, axis) * component(geometry.bounds.size, axis);
}

LinearExpression LayoutProblem::start(Object view, Axis axis, Object space) const {
  if (view == space) return component(UIView::of(view).geometry().bounds.origin, axis);
  LinearExpression sum = startInSuperview(view, axis);
  for (Object above = UIView::of(view).parent; above && above != space;
       above = UIView::of(above).parent)
    sum = sum + startInSuperview(above, axis) -
          component(UIView::of(above).geometry().bounds.origin, axis);
  return sum;
}

CGRect LayoutProblem::rect(Object view, const Solution& solution) const {
  const double* values = &solution.values[std::size_t(firstVariable(view))];
  return {{values[0], values[1]}, {values[lengths], values[lengths + 1]}};
}

}  // namespace sim
