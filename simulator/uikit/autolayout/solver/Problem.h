// A whole problem of linear constraints with priorities, and its solution.
//
// Priorities are strict: one soft constraint outweighs any number of those with lower priorities.
// Where several of one priority cannot be granted together, the sum of what they are missed by is
// smallest. What is still open then is settled alike every time: lengths are as small as they can
// be, positions that nothing determines are 0, and where there is a choice left it is the order in
// which variables and constraints were made that decides.
#pragma once

#include <cstddef>
#include <vector>

#include "simulator/uikit/autolayout/solver/LinearExpression.h"

namespace sim {

class Part;

struct Solution {
  std::vector<double> values;       // by variable
  std::vector<std::size_t> broken;  // required constraints that do not hold, by number
};

class Problem {
 public:
  static constexpr double required = 1000;

  Variable position();  // may be negative
  Variable length();    // never negative

  // `left` compared with 0; priorities above `required` count as it. Gives the constraint's
  // number. A required constraint that contradicts those made before it, or that a length is not
  // negative, does not hold.
  std::size_t add(LinearExpression left, Relation relation, double priority);

  Solution solve() const;

 private:
  struct Constraint {
    LinearExpression left;
    Relation relation;
    double priority;
  };

  // Which variables constraints connect: by variable, the first of those connected with it.
  std::vector<Variable> connectedGroups() const;
  std::vector<Part> parts() const;

  std::vector<bool> isLength_;  // by variable
  std::vector<Constraint> constraints_;
};

}  // namespace sim
