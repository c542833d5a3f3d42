#include "simulator/uikit/autolayout/solver/Part.h"

#include <algorithm>
#include <utility>

#include "simulator/uikit/autolayout/solver/LinearSystem.h"

namespace sim {

Variable Part::addVariable(Variable ofProblem, bool isLength) {
  variables_.push_back(ofProblem);
  isLength_.push_back(isLength);
  return Variable(variables_.size() - 1);
}

void Part::addConstraint(std::size_t number, LinearExpression left, Relation relation,
                         double priority) {
  auto& kind = priority >= Problem::required ? required_ : softConstraints_;
  kind.push_back({number, std::move(left), relation, priority});
}

// Lengths that are determined need no row of their own when they come last, so that is tried
// first. Only what contradicts something depends on the order.
void Part::solveInto(Solution& solution) const {
  LinearSystem system(variables_.size());
  if (!requireConstraints(system).empty() || !requireLengths(system)) {
    system = LinearSystem(variables_.size());
    requireLengths(system);
    const std::vector<std::size_t> broken = requireConstraints(system);
    solution.broken.insert(solution.broken.end(), broken.begin(), broken.end());
  }
  preferConstraints(system);
  system.minimise(sumOfLengths());
  const std::vector<double> values = system.values();
  for (std::size_t i = 0; i < variables_.size(); ++i)
    solution.values[std::size_t(variables_[i])] = values[i];
}

LinearExpression Part::sumOfLengths() const {
  LinearExpression sum;
  for (std::size_t i = 0; i < isLength_.size(); ++i)
    if (isLength_[i]) sum.add(LinearExpression::of(Variable(i)));
  return sum;
}

bool Part::requireLengths(LinearSystem& system) const {
  bool possible = true;
  for (std::size_t i = 0; i < isLength_.size(); ++i)
    if (isLength_[i])
      possible = system.require(LinearExpression::of(Variable(i)), Relation::atLeast) && possible;
  return possible;
}

std::vector<std::size_t> Part::requireConstraints(LinearSystem& system) const {
  std::vector<std::size_t> broken;
  for (const Constraint& each : required_)
    if (!system.require(each.left, each.relation)) broken.push_back(each.number);
  return broken;
}

void Part::preferConstraints(LinearSystem& system) const {
  std::vector<const Constraint*> sorted;
  for (const Constraint& each : softConstraints_) sorted.push_back(&each);
  std::stable_sort(sorted.begin(), sorted.end(), [](const Constraint* a, const Constraint* b) {
    return a->priority > b->priority;
  });
  std::vector<LinearSystem::SoftConstraint> alike;
  for (std::size_t i = 0; i < sorted.size(); ++i) {
    alike.push_back({&sorted[i]->left, sorted[i]->relation});
    if (i + 1 < sorted.size() && sorted[i + 1]->priority == sorted[i]->priority) continue;
    system.prefer(alike);
    alike.clear();
  }
}

}  // namespace sim
