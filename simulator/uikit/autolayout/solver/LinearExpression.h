// Sums of variables and a constant, and what may be said about them.
#pragma once

#include <vector>

namespace sim {

// A quantity to be found, by its number in the problem that made it.
using Variable = int;

struct Term {
  Variable variable;
  double coefficient;
};

struct LinearExpression {
  std::vector<Term> terms;  // a variable may stand in several
  double constant = 0;

  LinearExpression() = default;
  LinearExpression(double value) : constant(value) {}

  static LinearExpression of(Variable variable, double coefficient = 1) {
    LinearExpression made;
    made.terms.push_back({variable, coefficient});
    return made;
  }

  LinearExpression& add(const LinearExpression& other, double times = 1) {
    for (const Term& each : other.terms) terms.push_back({each.variable, each.coefficient * times});
    constant += other.constant * times;
    return *this;
  }
};

inline LinearExpression operator+(LinearExpression left, const LinearExpression& right) {
  return left.add(right);
}
inline LinearExpression operator-(LinearExpression left, const LinearExpression& right) {
  return left.add(right, -1);
}
inline LinearExpression operator*(double times, const LinearExpression& expression) {
  return LinearExpression().add(expression, times);
}

// To zero. The values are those of NSLayoutRelation.
enum class Relation { atMost = -1, equal = 0, atLeast = 1 };

}  // namespace sim
