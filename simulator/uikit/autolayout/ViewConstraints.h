// What Auto Layout knows about one view. Most views have nothing of it.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <vector>

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"
#include "simulator/uikit/nib/EdgeInsets.h"

namespace sim {

struct ViewConstraints {
  std::vector<objc::Strong<objc::Object>> owned;  // NSLayoutConstraint, all active
  bool translatesMask = true;                     // false: constraints place the view
  std::array<float, 2> hugging{250, 250};         // priorities, horizontal and vertical
  std::array<float, 2> resistance{750, 750};
  UIEdgeInsets margins{8, 8, 8, 8};
  bool needsUpdate = false;      // updateConstraints is due
  bool hasBeenInWindow = false;  // of classes with an updateConstraints of their own

  // Of a tree's root: the solution does not fit the tree any more.
  bool isStale = false;
  // The view stands where it is, and the last solution was made from that.
  bool isRead = false;
  // One of the system's own constraints for the view broke, and the log said so.
  bool isReportedBroken = false;
  // What -intrinsicContentSize answered, until it is invalidated.
  std::optional<CGSize> contentSize;
  // Points, whole pixels, in the superview's coordinates; none before there is a solution.
  std::optional<CGRect> solved;
  // Of the solution that is being made: of x, followed by y, width and height. -1: a constant.
  int firstVariable = -1;
  // The width at which text of several lines was measured last.
  std::optional<double> wrappedAt;
};

// Made when it is first asked for.
ViewConstraints& constraintsOf(objc::Object view);
// nullptr when nothing was ever said about the view.
ViewConstraints* existingConstraintsOf(objc::Object view);
// Whether constraints place the view. Roots of trees stand where they were put.
bool isPlacedByConstraints(objc::Object view);

}  // namespace sim
