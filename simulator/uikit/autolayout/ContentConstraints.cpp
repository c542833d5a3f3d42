// Views that are as large as what they show.
#include <cmath>
#include <limits>

#include "objc/Message.h"
#include "simulator/foundation/Kind.h"
#include "simulator/uikit/autolayout/Constraints.h"
#include "simulator/uikit/autolayout/ViewConstraints.h"
#include "simulator/uikit/views/UILabel.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {
namespace {

using objc::Object;

constexpr double unlimited = std::numeric_limits<double>::max();

bool wraps(Object view) {
  const UILabel* label = stateOf<UILabel>(view);
  return label != nullptr && label->numberOfLines != 1;
}

// Kept until it is invalidated. Text of several lines is as high as it is at the width that it
// has got.
CGSize contentSize(Object view) {
  ViewConstraints& its = constraintsOf(view);
  if (!its.contentSize) {
    its.contentSize = objc::send<CGSize, "intrinsicContentSize">(view);
    its.wrappedAt.reset();
  }
  CGSize size = *its.contentSize;
  if (its.wrappedAt && *its.wrappedAt < size.width)
    size.height =
        objc::send<CGSize, "sizeThatFits:">(view, CGSize{*its.wrappedAt, unlimited}).height;
  return size;
}

// A view of another class may answer anything, and is asked only when its tree is laid out.
bool isPlainLabel(Object view) {
  const SEL size = objc::selector<"intrinsicContentSize">();
  return isA<UILabel>(view) && class_getMethodImplementation(object_getClass(view.get()), size) ==
                                   class_getMethodImplementation(UILabel::cls(), size);
}

}  // namespace

bool isAsLargeAsBefore(Object view) {
  const ViewConstraints& its = constraintsOf(view);
  return its.contentSize && !its.wrappedAt && isPlainLabel(view) && !wraps(view) &&
         objc::send<CGSize, "intrinsicContentSize">(view) == *its.contentSize;
}

void addContentConstraints(LayoutProblem& problem, Object view) {
  const CGSize size = contentSize(view);
  const ViewConstraints& its = constraintsOf(view);
  for (const Axis axis : {Axis::horizontal, Axis::vertical}) {
    const double wanted = axis == Axis::horizontal ? size.width : size.height;
    if (wanted < 0) continue;  // none
    const LinearExpression excess = problem.length(view, axis) - wanted;
    problem.add(excess, Relation::atMost, double(its.hugging[std::size_t(axis)]),
                {nullptr, "NSContentSizeLayoutConstraint hugging", view});
    problem.add(excess, Relation::atLeast, double(its.resistance[std::size_t(axis)]),
                {nullptr, "NSContentSizeLayoutConstraint compression resistance", view});
  }
}

bool wrapTexts(const LayoutProblem& problem, const Solution& solution) {
  bool any = false;
  for (const Object view : problem.placed()) {
    if (!wraps(view)) continue;
    const double width = problem.rect(view, solution).size.width;
    ViewConstraints& its = constraintsOf(view);
    if (its.wrappedAt == width) continue;
    its.wrappedAt = width;
    any = true;
  }
  return any;
}

}  // namespace sim
