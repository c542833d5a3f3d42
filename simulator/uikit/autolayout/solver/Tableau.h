// The simplex method over variables that are never negative.
//
// Every row says what its basic variable is: a constant, which is not negative, and a multiple of
// each column's variable. With the columns' variables at 0 the constants are the basic variables'
// values; a pivot changes which variables have rows.
#pragma once

#include <cstddef>
#include <vector>

namespace sim {

class Tableau {
 public:
  using Symbol = int;  // a variable; smaller ones go first where there is a choice

  struct Row {
    std::vector<double> coefficients;  // by column
    double constant = 0;
  };

  // Differences smaller than this, of points, are none.
  static constexpr double tolerance = 1e-7;

  void addColumn(Symbol symbol);
  const std::vector<Symbol>& columns() const { return columns_; }
  const std::vector<Symbol>& basics() const { return basics_; }
  const Row& row(std::size_t index) const { return rows_[index]; }
  Row emptyRow() const { return {std::vector<double>(columns_.size()), 0}; }

  // The symbol is new. The constant is not negative.
  void addRow(Symbol basic, Row row);
  // From now on the row's value is 0. Where that cannot be false is given back and nothing changes
  // but the choice of basic variables.
  bool requireZero(Row row);

  // Makes the objective, which is never negative, as small as it can be and keeps it there:
  // columns that would raise it are dropped, so their variables stay 0.
  void minimise(Row objective);

 private:
  void optimise(Row& objective);
  int entering(const Row& objective) const;       // a column; -1: the objective is smallest
  std::size_t leaving(std::size_t column) const;  // a row
  void pivot(std::size_t row, std::size_t column);
  void eliminate(Row& from, std::size_t column, const Row& with) const;
  bool pivotOut(std::size_t row);
  void dropRow(std::size_t row);
  void dropColumn(std::size_t column);

  std::vector<Symbol> columns_;
  std::vector<Symbol> basics_;  // by row
  std::vector<Row> rows_;
};

}  // namespace sim
