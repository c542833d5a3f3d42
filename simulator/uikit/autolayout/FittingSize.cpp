#include "simulator/uikit/autolayout/FittingSize.h"

#include <cmath>

#include "simulator/uikit/application/UIScreen.h"
#include "simulator/uikit/autolayout/Constraints.h"

namespace sim {
namespace {

using objc::Object;

// Up to a whole pixel: what is in it must find room.
double upToPixel(double points) {
  constexpr double roundingErrors = 1e-6;
  return std::ceil(points * UIScreen::mainScale - roundingErrors) / UIScreen::mainScale;
}

}  // namespace

CGSize fittingSize(Object view, CGSize target, float horizontal, float vertical) {
  constexpr int enoughRounds = 3;  // text that wraps changes heights, seldom widths
  for (int round = 1;; ++round) {
    LayoutProblem problem(view, LayoutProblem::Root::fits);
    addAllConstraints(problem);
    addContentConstraints(problem, view);
    const auto want = [&](Axis axis, double points, float priority) {
      problem.add(problem.length(view, axis) - points, Relation::equal, double(priority),
                  {nullptr, "fitting size", view});
    };
    want(Axis::horizontal, target.width, horizontal);
    want(Axis::vertical, target.height, vertical);
    const Solution solution = problem.solve();
    if (wrapTexts(problem, solution) && round < enoughRounds) continue;
    const CGSize size = problem.rect(view, solution).size;
    return {upToPixel(size.width), upToPixel(size.height)};
  }
}

}  // namespace sim
