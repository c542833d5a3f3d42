#include "simulator/uikit/autolayout/solver/Tableau.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace sim {
namespace {

// Coefficients are sums of products of multipliers: what is smaller is a rounding error.
constexpr double negligible = 1e-10;

void clean(double& value) {
  if (std::abs(value) < negligible) value = 0;
}

// Comes before every other symbol, so that it leaves as soon as it can.
constexpr Tableau::Symbol artificial = -1;

}  // namespace

void Tableau::addColumn(Symbol symbol) {
  columns_.push_back(symbol);
  for (Row& row : rows_) row.coefficients.push_back(0);
}

void Tableau::addRow(Symbol basic, Row row) {
  for (double& coefficient : row.coefficients) clean(coefficient);
  row.constant = std::max(row.constant, 0.0);
  basics_.push_back(basic);
  rows_.push_back(std::move(row));
}

// By an artificial variable that takes the row's value and is made as small as possible.
bool Tableau::requireZero(Row row) {
  if (row.constant < 0) {
    row.constant = -row.constant;
    for (double& coefficient : row.coefficients) coefficient = -coefficient;
  }
  Row objective = row;
  addRow(artificial, std::move(row));
  if (objective.constant > tolerance) optimise(objective);

  const auto basic = std::find(basics_.begin(), basics_.end(), artificial);
  if (basic == basics_.end()) {
    const auto column = std::find(columns_.begin(), columns_.end(), artificial);
    dropColumn(std::size_t(column - columns_.begin()));
    return true;
  }
  const auto index = std::size_t(basic - basics_.begin());
  const bool isZero = rows_[index].constant <= tolerance;
  if (isZero && pivotOut(index)) return true;
  dropRow(index);
  return isZero;
}

// Of the row of an artificial variable that is 0. False where the row says 0 = 0.
bool Tableau::pivotOut(std::size_t row) {
  int best = -1;
  const std::vector<double>& coefficients = rows_[row].coefficients;
  for (std::size_t i = 0; i < columns_.size(); ++i)
    if (std::abs(coefficients[i]) > tolerance &&
        (best < 0 || columns_[i] < columns_[std::size_t(best)]))
      best = int(i);
  if (best < 0) return false;
  rows_[row].constant = 0;
  pivot(row, std::size_t(best));
  dropColumn(std::size_t(best));
  return true;
}

void Tableau::minimise(Row objective) {
  optimise(objective);
  for (std::size_t i = columns_.size(); i-- > 0;)
    if (objective.coefficients[i] > tolerance) dropColumn(i);
}

// The rule of the smallest symbol, for what enters and for what leaves, never goes in circles.
void Tableau::optimise(Row& objective) {
  for (int column = entering(objective); column >= 0; column = entering(objective)) {
    const auto in = std::size_t(column);
    const std::size_t out = leaving(in);
    if (out == rows_.size()) return;  // nothing bounds it: no sum of distances does that
    pivot(out, in);
    eliminate(objective, in, rows_[out]);
  }
}

int Tableau::entering(const Row& objective) const {
  int best = -1;
  for (std::size_t i = 0; i < columns_.size(); ++i)
    if (objective.coefficients[i] < -tolerance &&
        (best < 0 || columns_[i] < columns_[std::size_t(best)]))
      best = int(i);
  return best;
}

std::size_t Tableau::leaving(std::size_t column) const {
  std::size_t best = rows_.size();
  double bestRatio = std::numeric_limits<double>::infinity();
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    const double coefficient = rows_[i].coefficients[column];
    if (coefficient >= -tolerance) continue;
    const double ratio = rows_[i].constant / -coefficient;
    const bool ties = std::abs(ratio - bestRatio) <= negligible;
    if (ties ? basics_[i] < basics_[best] : ratio < bestRatio) {
      best = i;
      bestRatio = ratio;
    }
  }
  return best;
}

// The row's variable and the column's change places.
void Tableau::pivot(std::size_t row, std::size_t column) {
  Row& changed = rows_[row];
  const double divisor = -1 / changed.coefficients[column];
  changed.coefficients[column] = -1;
  changed.constant *= divisor;
  clean(changed.constant);
  for (double& coefficient : changed.coefficients) coefficient *= divisor;
  std::swap(basics_[row], columns_[column]);
  for (std::size_t i = 0; i < rows_.size(); ++i)
    if (i != row) {
      eliminate(rows_[i], column, changed);
      if (rows_[i].constant < 0) rows_[i].constant = 0;  // by rounding alone
    }
}

// `with` says what the column's variable was, by the columns as they are now.
void Tableau::eliminate(Row& from, std::size_t column, const Row& with) const {
  const double times = std::exchange(from.coefficients[column], 0);
  if (times == 0) return;
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    from.coefficients[i] += times * with.coefficients[i];
    clean(from.coefficients[i]);
  }
  from.constant += times * with.constant;
  clean(from.constant);
}

void Tableau::dropRow(std::size_t row) {
  rows_.erase(rows_.begin() + long(row));
  basics_.erase(basics_.begin() + long(row));
}

void Tableau::dropColumn(std::size_t column) {
  columns_[column] = columns_.back();
  columns_.pop_back();
  for (Row& row : rows_) {
    row.coefficients[column] = row.coefficients.back();
    row.coefficients.pop_back();
  }
}

}  // namespace sim
