#include "simulator/uikit/autolayout/Attributes.h"

#include <array>

#include "simulator/uikit/autolayout/Baselines.h"
#include "simulator/uikit/autolayout/ViewConstraints.h"

namespace sim {

using objc::Object;

namespace attribute {

const char* name(long attribute) {
  constexpr std::array<const char*, 21> names = {"notAnAttribute",
                                                 "left",
                                                 "right",
                                                 "top",
                                                 "bottom",
                                                 "leading",
                                                 "trailing",
                                                 "width",
                                                 "height",
                                                 "centerX",
                                                 "centerY",
                                                 "lastBaseline",
                                                 "firstBaseline",
                                                 "leftMargin",
                                                 "rightMargin",
                                                 "topMargin",
                                                 "bottomMargin",
                                                 "leadingMargin",
                                                 "trailingMargin",
                                                 "centerXWithinMargins",
                                                 "centerYWithinMargins"};
  return attribute >= 0 && attribute < long(names.size()) ? names[std::size_t(attribute)]
                                                          : "unknown";
}

bool isLength(long attribute) {
  return attribute == width || attribute == height;
}

bool followsReadingDirection(long attribute) {
  return attribute == leading || attribute == trailing || attribute == leadingMargin ||
         attribute == trailingMargin;
}

}  // namespace attribute

namespace {

// Between the edges, as a part of the extent; and into the view from the edge.
struct Place {
  double part;
  double inset = 0;
};

LinearExpression along(const LayoutProblem& problem, Object view, Axis axis, const Space& space,
                       const Place& place) {
  return problem.start(view, axis, space.view) + place.part * problem.length(view, axis) +
         place.inset;
}

UIEdgeInsets marginsOf(Object view) {
  const ViewConstraints* its = existingConstraintsOf(view);
  return its == nullptr ? ViewConstraints().margins : its->margins;
}

// Of leading and trailing ones, what they are where they are read in that direction.
long absolute(long attribute, bool isMirrored) {
  switch (attribute) {
    case attribute::leading:
      return isMirrored ? attribute::right : attribute::left;
    case attribute::trailing:
      return isMirrored ? attribute::left : attribute::right;
    case attribute::leadingMargin:
      return isMirrored ? attribute::rightMargin : attribute::leftMargin;
    case attribute::trailingMargin:
      return isMirrored ? attribute::leftMargin : attribute::rightMargin;
    default:
      return attribute;
  }
}

LinearExpression horizontal(const LayoutProblem& problem, Object view, long attribute,
                            const Space& space) {
  const auto at = [&](const Place& place) {
    return along(problem, view, Axis::horizontal, space, place);
  };
  const UIEdgeInsets margins = marginsOf(view);
  switch (attribute) {
    case attribute::right:
      return at({1});
    case attribute::centerX:
      return at({0.5});
    case attribute::leftMargin:
      return at({0, margins.left});
    case attribute::rightMargin:
      return at({1, -margins.right});
    case attribute::centerXWithinMargins:
      return at({0.5, (margins.left - margins.right) / 2});
    default:
      return at({0});
  }
}

LinearExpression vertical(const LayoutProblem& problem, Object view, long attribute,
                          const Space& space) {
  const auto at = [&](const Place& place) {
    return along(problem, view, Axis::vertical, space, place);
  };
  const UIEdgeInsets margins = marginsOf(view);
  switch (attribute) {
    case attribute::bottom:
      return at({1});
    case attribute::centerY:
      return at({0.5});
    case attribute::topMargin:
      return at({0, margins.top});
    case attribute::bottomMargin:
      return at({1, -margins.bottom});
    case attribute::centerYWithinMargins:
      return at({0.5, (margins.top - margins.bottom) / 2});
    default:
      return at({0});
  }
}

bool isVertical(long attribute) {
  return attribute == attribute::top || attribute == attribute::bottom ||
         attribute == attribute::centerY || attribute == attribute::topMargin ||
         attribute == attribute::bottomMargin || attribute == attribute::centerYWithinMargins;
}

}  // namespace

LinearExpression expressionOf(const LayoutProblem& problem, Object view, long attribute,
                              const Space& space) {
  if (attribute == attribute::width) return problem.length(view, Axis::horizontal);
  if (attribute == attribute::height) return problem.length(view, Axis::vertical);
  if (attribute == attribute::firstBaseline || attribute == attribute::lastBaseline)
    return baseline(problem, view, attribute, space);
  if (isVertical(attribute)) return vertical(problem, view, attribute, space);
  const LinearExpression place =
      horizontal(problem, view, absolute(attribute, space.isMirrored), space);
  return space.isMirrored ? -1 * place : place;
}

}  // namespace sim
