// Some of a problem's variables with all the constraints between them: no other constraint
// mentions them.
#pragma once

#include <cstddef>
#include <vector>

#include "simulator/uikit/autolayout/solver/LinearExpression.h"
#include "simulator/uikit/autolayout/solver/Problem.h"

namespace sim {

class LinearSystem;

class Part {
 public:
  // Gives the number that the constraints of this part know it by.
  Variable addVariable(Variable ofProblem, bool isLength);
  void addConstraint(std::size_t number, LinearExpression left, Relation relation, double priority);

  // Adds what it finds to the problem's solution.
  void solveInto(Solution& solution) const;

 private:
  struct Constraint {
    std::size_t number;  // of the problem
    LinearExpression left;
    Relation relation;
    double priority;
  };

  LinearExpression sumOfLengths() const;
  bool requireLengths(LinearSystem& system) const;
  // The numbers of those that contradict what is before them.
  std::vector<std::size_t> requireConstraints(LinearSystem& system) const;
  void preferConstraints(LinearSystem& system) const;

  std::vector<Variable> variables_;
  std::vector<bool> isLength_;
  std::vector<Constraint> required_;         // in the order in which they were made
  std::vector<Constraint> softConstraints_;  // likewise
};

}  // namespace sim
