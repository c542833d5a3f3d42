// Linear constraints with strict priorities, solved as they are added: what must hold first, then
// what should, from the highest priority to the lowest.
//
// A free variable is eliminated by the first constraint that mentions it; only what is left over,
// sums of slacks and errors, goes into a simplex tableau. Layouts are made of chains of equations,
// so the tableau stays small.
#pragma once

#include <cstddef>
#include <vector>

#include "simulator/uikit/autolayout/solver/LinearExpression.h"
#include "simulator/uikit/autolayout/solver/Tableau.h"

namespace sim {

class LinearSystem {
 public:
  struct SoftConstraint {
    const LinearExpression* left;  // not owned
    Relation relation;             // to zero
  };

  explicit LinearSystem(std::size_t variables);

  // Must come before the soft constraints. False for one that contradicts those before it: it does
  // not hold.
  bool require(const LinearExpression& left, Relation relation);
  // Of one priority: the sum of what they are missed by is made as small as it can be without
  // costing any that came before them anything.
  void prefer(const std::vector<SoftConstraint>& constraints);
  // Last: makes the expression, which cannot be negative, as small as all that lets it be.
  void minimise(const LinearExpression& expression);

  // 0 for a variable that nothing determines.
  std::vector<double> values() const;

 private:
  using Symbol = Tableau::Symbol;  // the variables come first, then slacks and errors

  struct Definition {
    Symbol symbol;
    std::vector<Term> terms;
    double constant;
  };

  Symbol makeRestricted();  // never negative
  // The expression at hand becomes one of free variables and the tableau's columns.
  void reduce(const LinearExpression& expression, double times);
  void substituteDefinitions();
  void substituteBasics();
  bool isAnyFree(Symbol& found) const;
  void define(Symbol symbol);
  Tableau::Row reducedRow() const;
  void addRow(Symbol above, Symbol below);
  // Of symbols that may be basic, or gone.
  Tableau::Row sum(const std::vector<Symbol>& symbols) const;

  std::vector<bool> isDefined_;          // by variable
  std::vector<Definition> definitions_;  // each only mentions what is defined later, or never
  Tableau tableau_;
  // The expression at hand, by symbol.
  std::vector<double> coefficients_;
  double constant_ = 0;
};

}  // namespace sim
