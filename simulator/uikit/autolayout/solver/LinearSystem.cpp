#include "simulator/uikit/autolayout/solver/LinearSystem.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace sim {
namespace {

bool isZero(double coefficient) {
  return std::abs(coefficient) <= Tableau::tolerance;
}

}  // namespace

LinearSystem::LinearSystem(std::size_t variables)
    : isDefined_(variables), coefficients_(variables) {}

bool LinearSystem::require(const LinearExpression& left, Relation relation) {
  reduce(left, relation == Relation::atMost ? -1 : 1);
  Symbol free = -1;
  const bool isFree = isAnyFree(free);
  if (relation == Relation::equal) {
    if (!isFree) return tableau_.requireZero(reducedRow());
    define(free);
    return true;
  }
  const Symbol slack = makeRestricted();
  if (!isFree && constant_ >= -Tableau::tolerance) {
    tableau_.addRow(slack, reducedRow());
    return true;
  }
  tableau_.addColumn(slack);
  coefficients_[std::size_t(slack)] = -1;
  if (!isFree) return tableau_.requireZero(reducedRow());
  define(free);
  return true;
}

void LinearSystem::prefer(const std::vector<SoftConstraint>& constraints) {
  std::vector<Symbol> errors;
  for (const SoftConstraint& each : constraints) {
    reduce(*each.left, each.relation == Relation::atMost ? -1 : 1);
    Symbol free = -1;
    const bool isFree = isAnyFree(free);
    const Symbol above = makeRestricted(), below = makeRestricted();
    errors.push_back(below);
    if (each.relation == Relation::equal) errors.push_back(above);
    if (!isFree) {
      addRow(above, below);
      continue;
    }
    for (const Symbol slack : {above, below}) tableau_.addColumn(slack);
    coefficients_[std::size_t(above)] = -1;
    coefficients_[std::size_t(below)] = 1;
    define(free);
  }
  tableau_.minimise(sum(errors));
}

void LinearSystem::minimise(const LinearExpression& expression) {
  reduce(expression, 1);
  tableau_.minimise(reducedRow());
}

std::vector<double> LinearSystem::values() const {
  std::vector<double> found(coefficients_.size());
  for (std::size_t i = 0; i < tableau_.basics().size(); ++i)
    found[std::size_t(tableau_.basics()[i])] = tableau_.row(i).constant;
  for (auto each = definitions_.rbegin(); each != definitions_.rend(); ++each) {
    double value = each->constant;
    for (const Term& term : each->terms)
      value += term.coefficient * found[std::size_t(term.variable)];
    found[std::size_t(each->symbol)] = value;
  }
  found.resize(isDefined_.size());
  return found;
}

LinearSystem::Symbol LinearSystem::makeRestricted() {
  coefficients_.push_back(0);
  return Symbol(coefficients_.size() - 1);
}

void LinearSystem::reduce(const LinearExpression& expression, double times) {
  std::fill(coefficients_.begin(), coefficients_.end(), 0.0);
  constant_ = expression.constant * times;
  for (const Term& term : expression.terms)
    coefficients_[std::size_t(term.variable)] += term.coefficient * times;
  substituteDefinitions();
  substituteBasics();
}

void LinearSystem::substituteDefinitions() {
  for (const Definition& definition : definitions_) {
    const double times = std::exchange(coefficients_[std::size_t(definition.symbol)], 0);
    if (times == 0) continue;
    for (const Term& term : definition.terms)
      coefficients_[std::size_t(term.variable)] += times * term.coefficient;
    constant_ += times * definition.constant;
  }
}

void LinearSystem::substituteBasics() {
  for (std::size_t i = 0; i < tableau_.basics().size(); ++i) {
    const double times = std::exchange(coefficients_[std::size_t(tableau_.basics()[i])], 0);
    if (times == 0) continue;
    const Tableau::Row& row = tableau_.row(i);
    for (std::size_t j = 0; j < tableau_.columns().size(); ++j)
      coefficients_[std::size_t(tableau_.columns()[j])] += times * row.coefficients[j];
    constant_ += times * row.constant;
  }
}

bool LinearSystem::isAnyFree(Symbol& found) const {
  for (std::size_t i = 0; i < isDefined_.size(); ++i)
    if (!isDefined_[i] && !isZero(coefficients_[i])) {
      found = Symbol(i);
      return true;
    }
  return false;
}

// The expression at hand is 0.
void LinearSystem::define(Symbol symbol) {
  const double divisor = -1 / coefficients_[std::size_t(symbol)];
  Definition made{symbol, {}, constant_ * divisor};
  for (std::size_t i = 0; i < isDefined_.size(); ++i)
    if (Symbol(i) != symbol && !isZero(coefficients_[i]))
      made.terms.push_back({Variable(i), coefficients_[i] * divisor});
  for (const Symbol column : tableau_.columns())
    if (!isZero(coefficients_[std::size_t(column)]))
      made.terms.push_back({column, coefficients_[std::size_t(column)] * divisor});
  isDefined_[std::size_t(symbol)] = true;
  definitions_.push_back(std::move(made));
}

Tableau::Row LinearSystem::reducedRow() const {
  Tableau::Row row = tableau_.emptyRow();
  row.constant = constant_;
  for (std::size_t i = 0; i < row.coefficients.size(); ++i)
    row.coefficients[i] = coefficients_[std::size_t(tableau_.columns()[i])];
  return row;
}

// The expression at hand is what it is above zero less what it is below.
void LinearSystem::addRow(Symbol above, Symbol below) {
  const bool isAbove = constant_ >= 0;
  tableau_.addColumn(isAbove ? below : above);
  Tableau::Row row = reducedRow();
  if (!isAbove) {
    row.constant = -row.constant;
    for (double& coefficient : row.coefficients) coefficient = -coefficient;
  }
  row.coefficients.back() = 1;
  tableau_.addRow(isAbove ? above : below, std::move(row));
}

Tableau::Row LinearSystem::sum(const std::vector<Symbol>& symbols) const {
  Tableau::Row row = tableau_.emptyRow();
  std::vector<bool> isSummand(coefficients_.size());
  for (const Symbol each : symbols) isSummand[std::size_t(each)] = true;
  for (std::size_t i = 0; i < row.coefficients.size(); ++i)
    row.coefficients[i] = isSummand[std::size_t(tableau_.columns()[i])] ? 1 : 0;
  for (std::size_t i = 0; i < tableau_.basics().size(); ++i) {
    if (!isSummand[std::size_t(tableau_.basics()[i])]) continue;
    const Tableau::Row& basic = tableau_.row(i);
    row.constant += basic.constant;
    for (std::size_t j = 0; j < row.coefficients.size(); ++j)
      row.coefficients[j] += basic.coefficients[j];
  }
  return row;
}

}  // namespace sim
