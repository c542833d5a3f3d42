// The constraints of a tree of views as a problem of linear constraints.
#pragma once

#include <string>
#include <vector>

#include "objc/Object.h"
#include "simulator/coregraphics/Geometry.h"
#include "simulator/uikit/autolayout/solver/Problem.h"

namespace sim {

enum class Axis { horizontal, vertical };

class LayoutProblem {
 public:
  // What a constraint of the problem comes from.
  struct Origin {
    objc::Object constraint;  // NSLayoutConstraint; nil: the system's own, which has a name
    const char* name = "";
    objc::Object view;
  };
  enum class Root { isAsItIs, fits };  // fits: its size is to be found, too

  // Of views alone, as yet. They stay unchanged as long as the problem is used.
  LayoutProblem(objc::Object root, Root kind);

  // Nothing without a priority.
  void add(LinearExpression left, Relation relation, double priority, const Origin& origin);
  const Origin& origin(std::size_t number) const { return origins_[number]; }
  Solution solve() const { return problem_.solve(); }

  objc::Object root() const { return root_; }
  // Those that constraints place, superviews before their subviews.
  const std::vector<objc::Object>& placed() const { return placed_; }
  const std::vector<objc::Object>& stacks() const { return stacks_; }
  // Active NSLayoutConstraints, in the order in which they became so.
  const std::vector<objc::Object>& constraints() const { return constraints_; }
  // In the superview's coordinates; of the root, only the size.
  CGRect rect(objc::Object view, const Solution& solution) const;

  // The view's lesser edge, and its extent. Coordinates are those of `space`, the view itself or
  // one of the views around it.
  LinearExpression start(objc::Object view, Axis axis, objc::Object space) const;
  LinearExpression length(objc::Object view, Axis axis) const;

 private:
  void addTree(objc::Object view);
  void collect(objc::Object view);
  void makeVariables(objc::Object view);
  LinearExpression startInSuperview(objc::Object view, Axis axis) const;

  objc::Object root_;
  Problem problem_;
  std::vector<Origin> origins_;
  std::vector<objc::Object> placed_;
  std::vector<objc::Object> stacks_;
  std::vector<objc::Object> constraints_;
};

}  // namespace sim
