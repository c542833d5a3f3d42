#include "simulator/uikit/autolayout/LayoutEngine.h"

#include <utility>

#include "objc/Message.h"
#include "simulator/machine/Phone.h"
#include "simulator/uikit/autolayout/Constraints.h"
#include "simulator/uikit/autolayout/NSLayoutConstraint.h"
#include "simulator/uikit/autolayout/Pixels.h"
#include "simulator/uikit/autolayout/UpdateConstraints.h"
#include "simulator/uikit/autolayout/ViewConstraints.h"
#include "simulator/uikit/views/UIView.h"
#include "simulator/uikit/views/ViewLayout.h"
#include "simulator/uikit/views/ViewTree.h"

namespace sim {
namespace {

using objc::Object;

CGPoint positionIn(const CGRect& rect, CGPoint anchor) {
  return {rect.origin.x + anchor.x * rect.size.width, rect.origin.y + anchor.y * rect.size.height};
}

bool standsAt(const LayerGeometry& geometry, const CGRect& rect) {
  return geometry.bounds.size == rect.size &&
         geometry.position == positionIn(rect, geometry.anchorPoint);
}

// Whether it is so for the first time: once for each constraint, until it is changed, and once for
// all that the system has for a view.
bool isNews(const LayoutProblem::Origin& origin) {
  bool& isReported = origin.constraint ? NSLayoutConstraint::of(origin.constraint).isReportedBroken
                                       : constraintsOf(origin.view).isReportedBroken;
  return !std::exchange(isReported, true);
}

std::string nameOf(const LayoutProblem::Origin& origin) {
  if (origin.constraint) return NSLayoutConstraint::of(origin.constraint).description();
  return std::string("<NSLayoutConstraint '") + origin.name + "' of " +
         object_getClassName(origin.view.get()) + '>';
}

void reportBroken(const LayoutProblem& problem, const Solution& solution) {
  for (const std::size_t number : solution.broken)
    if (isNews(problem.origin(number)))
      Phone::current().journal.record(
          "log " +
          sim::quoted("Unable to simultaneously satisfy constraints. Will attempt to recover by "
                      "breaking constraint " +
                      nameOf(problem.origin(number))));
}

// The superview of what moves has to put it there.
void keep(const LayoutProblem& problem, const Solution& solution) {
  std::vector<Object> parents;
  for (const Object view : problem.placed()) {
    const CGRect rect = onPixels(problem.rect(view, solution));
    constraintsOf(view).solved = rect;
    const UIView& state = UIView::of(view);
    if (standsAt(state.geometry(), rect)) continue;
    if (parents.empty() || parents.back() != state.parent) parents.push_back(state.parent);
  }
  for (const Object parent : parents) objc::send<void, "setNeedsLayout">(parent);
}

void solve(Object root) {
  constexpr int enoughRounds = 3;  // text that wraps changes heights, seldom widths
  for (int round = 1; round <= enoughRounds; ++round) {
    LayoutProblem problem(root, LayoutProblem::Root::isAsItIs);
    if (problem.placed().empty()) return;
    addAllConstraints(problem);
    const Solution solution = problem.solve();
    if (wrapTexts(problem, solution) && round < enoughRounds) continue;
    reportBroken(problem, solution);
    return keep(problem, solution);
  }
}

}  // namespace

void constraintsChanged(Object view) {
  const Object root = rootOf(view);
  constraintsOf(root).isStale = true;
  if (windowOf(root)) queueLayoutPass();
}

void geometryChanged(Object view) {
  const ViewConstraints* its = existingConstraintsOf(view);
  if (its != nullptr && its->isRead) constraintsChanged(view);
}

void contentSizeChanged(Object view) {
  ViewConstraints* its = existingConstraintsOf(view);
  if (its == nullptr || its->translatesMask || isAsLargeAsBefore(view)) return;
  its->contentSize.reset();
  constraintsChanged(view);
}

void solveIfNeeded(Object view) {
  const Object root = rootOf(view);
  ViewConstraints* its = existingConstraintsOf(root);
  if (its == nullptr || !std::exchange(its->isStale, false)) return;
  updateConstraintsIfNeeded(root);
  its->isStale = false;
  solve(root);
}

void placeSubviews(Object view) {
  const auto children = UIView::of(view).children;
  for (const auto& child : children) {
    if (!isPlacedByConstraints(child) || !constraintsOf(child).solved) continue;
    const CGRect rect = *constraintsOf(child).solved;
    const LayerGeometry& geometry = UIView::of(child.get()).geometry();
    if (geometry.bounds.size != rect.size)
      objc::send<void, "setBounds:">(child.get(), CGRect{geometry.bounds.origin, rect.size});
    const CGPoint position = positionIn(rect, geometry.anchorPoint);
    if (geometry.position != position) objc::send<void, "setCenter:">(child.get(), position);
  }
}

}  // namespace sim
