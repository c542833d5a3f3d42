#include "simulator/uikit/autolayout/solver/Problem.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "simulator/uikit/autolayout/solver/Part.h"

namespace sim {
namespace {

// Which variables constraints connect, by union and find.
class Connections {
 public:
  explicit Connections(std::size_t variables) : parents_(variables) {
    std::iota(parents_.begin(), parents_.end(), Variable(0));
  }
  Variable rootOf(Variable variable) {
    while (parents_[std::size_t(variable)] != variable) variable = parents_[std::size_t(variable)];
    return variable;
  }
  void connect(Variable a, Variable b) {
    a = rootOf(a);
    b = rootOf(b);
    parents_[std::size_t(std::max(a, b))] = std::min(a, b);
  }

 private:
  std::vector<Variable> parents_;
};

}  // namespace

Variable Problem::position() {
  isLength_.push_back(false);
  return Variable(isLength_.size() - 1);
}

Variable Problem::length() {
  isLength_.push_back(true);
  return Variable(isLength_.size() - 1);
}

std::size_t Problem::add(LinearExpression left, Relation relation, double priority) {
  constraints_.push_back({std::move(left), relation, priority});
  return constraints_.size() - 1;
}

std::vector<Variable> Problem::connectedGroups() const {
  Connections connections(isLength_.size());
  for (const Constraint& each : constraints_)
    for (const Term& term : each.left.terms)
      connections.connect(each.left.terms.front().variable, term.variable);
  std::vector<Variable> groups(isLength_.size());
  for (std::size_t i = 0; i < groups.size(); ++i) groups[i] = connections.rootOf(Variable(i));
  return groups;
}

// The first part is of constraints between constants.
std::vector<Part> Problem::parts() const {
  const std::vector<Variable> groups = connectedGroups();
  std::vector<Part> parts(1);
  std::vector<std::size_t> partOf(groups.size());
  std::vector<Variable> numberInPart(groups.size());
  for (std::size_t i = 0; i < groups.size(); ++i) {
    const auto first = std::size_t(groups[i]);
    partOf[i] = first == i ? parts.size() : partOf[first];
    if (first == i) parts.emplace_back();
    numberInPart[i] = parts[partOf[i]].addVariable(Variable(i), isLength_[i]);
  }
  for (std::size_t i = 0; i < constraints_.size(); ++i) {
    LinearExpression left = constraints_[i].left;
    const std::size_t part =
        left.terms.empty() ? 0 : partOf[std::size_t(left.terms.front().variable)];
    for (Term& term : left.terms) term.variable = numberInPart[std::size_t(term.variable)];
    parts[part].addConstraint(i, std::move(left), constraints_[i].relation,
                              constraints_[i].priority);
  }
  return parts;
}

// Parts that have no variable in common are solved by themselves: the work grows faster than the
// number of constraints.
Solution Problem::solve() const {
  Solution solution{std::vector<double>(isLength_.size()), {}};
  for (const Part& part : parts()) part.solveInto(solution);
  std::sort(solution.broken.begin(), solution.broken.end());
  return solution;
}

}  // namespace sim
