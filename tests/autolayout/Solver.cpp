#include <gtest/gtest.h>

#include <algorithm>

#include "simulator/uikit/autolayout/solver/Problem.h"

namespace sim {
namespace {

LinearExpression v(Variable variable) {
  return LinearExpression::of(variable);
}

constexpr auto equal = Relation::equal, atLeast = Relation::atLeast, atMost = Relation::atMost;
using Numbers = std::vector<std::size_t>;

class Solver : public ::testing::Test {
 protected:
  double value(Variable variable) const { return problem.solve().values[std::size_t(variable)]; }
  Numbers broken() const { return problem.solve().broken; }

  Problem problem;
};

TEST_F(Solver, FollowsChainsOfEquations) {
  const Variable x = problem.position(), width = problem.length(), next = problem.position();
  problem.add(v(x) - 16, equal, 1000);
  problem.add(v(x) + v(width) - 305, equal, 1000);
  problem.add(v(next) - (v(x) + 0.5 * v(width)), equal, 1000);
  EXPECT_DOUBLE_EQ(value(width), 289);
  EXPECT_DOUBLE_EQ(value(next), 160.5);
}

TEST_F(Solver, OneHigherPriorityOutweighsAnyNumberOfLowerOnes) {
  const Variable width = problem.length();
  for (int i = 0; i < 100; ++i) problem.add(v(width) - 10, equal, 998);
  problem.add(v(width) - 1000, equal, 999);
  EXPECT_DOUBLE_EQ(value(width), 1000);
}

TEST_F(Solver, PrioritiesNeedNotBeWhole) {
  const Variable width = problem.length();
  problem.add(v(width) - 10, equal, 250);
  problem.add(v(width) - 20, equal, 250.5);
  EXPECT_DOUBLE_EQ(value(width), 20);
}

TEST_F(Solver, ALowerPriorityUsesTheRoomThatHigherOnesLeave) {
  const Variable width = problem.length();
  problem.add(v(width) - 100, atLeast, 1000);
  problem.add(v(width) - 300, atMost, 999);
  problem.add(v(width) - 200, atLeast, 750);
  problem.add(v(width), equal, 50);
  EXPECT_DOUBLE_EQ(value(width), 200);
}

TEST_F(Solver, AWishThatCannotBeGrantedIsMissedAsLittleAsPossible) {
  const Variable width = problem.length();
  problem.add(v(width) - 100, atMost, 1000);
  problem.add(v(width) - 150, equal, 750);
  EXPECT_DOUBLE_EQ(value(width), 100);
  EXPECT_TRUE(broken().empty());
}

TEST_F(Solver, AmongEqualsTheSumOfWhatIsMissedIsSmallest) {
  const Variable width = problem.length();
  for (const double wish : {10.0, 20.0, 90.0}) problem.add(v(width) - wish, equal, 500);
  EXPECT_DOUBLE_EQ(value(width), 20);
}

TEST_F(Solver, LengthsAreNeverNegative) {
  const Variable width = problem.length(), x = problem.position();
  problem.add(v(width) + 20, equal, 999);
  problem.add(v(x) + 20, equal, 999);
  EXPECT_DOUBLE_EQ(value(width), 0);
  EXPECT_DOUBLE_EQ(value(x), -20);
}

TEST_F(Solver, TheLaterOfContradictoryConstraintsBreaks) {
  const Variable width = problem.length();
  problem.add(v(width) - 50, equal, 1000);
  const auto second = problem.add(v(width) - 60, equal, 1000);
  const auto third = problem.add(v(width) - 55, atLeast, 1000);
  problem.add(v(width) - 40, atLeast, 1000);
  EXPECT_EQ(broken(), (Numbers{second, third}));
  EXPECT_DOUBLE_EQ(value(width), 50);
}

TEST_F(Solver, ConstraintsThatWouldMakeALengthNegativeBreak) {
  const Variable x = problem.position(), width = problem.length();
  problem.add(v(x) - 16, equal, 1000);
  const auto trailing = problem.add(v(x) + v(width) - 10, equal, 1000);
  EXPECT_EQ(broken(), Numbers{trailing});
  EXPECT_DOUBLE_EQ(value(x), 16);
  EXPECT_DOUBLE_EQ(value(width), 0);
}

TEST_F(Solver, ContradictionsMayTakeSeveralInequalities) {
  const Variable a = problem.length(), b = problem.length();
  problem.add(v(a) + v(b) - 10, atMost, 1000);
  problem.add(v(a) - 6, atLeast, 1000);
  const auto last = problem.add(v(b) - 6, atLeast, 1000);
  problem.add(v(b) - 6, equal, 1);  // still wished for
  EXPECT_EQ(broken(), Numbers{last});
  EXPECT_DOUBLE_EQ(value(a), 6);
  EXPECT_DOUBLE_EQ(value(b), 4);
}

TEST_F(Solver, RepeatingAConstraintContradictsNothing) {
  const Variable a = problem.length(), b = problem.length();
  for (int i = 0; i < 3; ++i) {
    problem.add(v(a) - v(b), equal, 1000);
    problem.add(v(a) + v(b) - 10, equal, 1000);
    problem.add(2 * v(a) + 2 * v(b) - 20, atLeast, 1000);
  }
  EXPECT_TRUE(broken().empty());
  EXPECT_DOUBLE_EQ(value(a), 5);
}

TEST_F(Solver, ConstraintsBetweenConstantsHoldOrBreak) {
  problem.add(LinearExpression(0), equal, 1000);
  const auto wrong = problem.add(LinearExpression(3), equal, 1000);
  problem.add(LinearExpression(3), equal, 999);
  EXPECT_EQ(broken(), Numbers{wrong});
}

TEST_F(Solver, WhatNothingDeterminesIsZero) {
  const Variable x = problem.position(), width = problem.length();
  problem.add(v(x) + v(width) - 300, equal, 1000);  // the length goes first
  const Variable alone = problem.position();
  EXPECT_DOUBLE_EQ(value(width), 0);
  EXPECT_DOUBLE_EQ(value(x), 300);
  EXPECT_DOUBLE_EQ(value(alone), 0);
}

// Anything from 100 to 300 points misses 200 in sum.
TEST_F(Solver, LengthsAreNoLongerInSumThanTheyMustBe) {
  const Variable b = problem.length(), a = problem.length();
  problem.add(v(a) + 2 * v(b) - 400, equal, 1000);
  for (const double wish : {300.0, 100.0}) problem.add(v(a) - wish, equal, 500);
  EXPECT_DOUBLE_EQ(value(a), 100);
  EXPECT_DOUBLE_EQ(value(b), 150);
}

TEST_F(Solver, ChoicesDoNotDependOnWhatElseThereIs) {
  const Variable a = problem.length(), b = problem.length();
  problem.add(v(a) + v(b) - 100, equal, 1000);
  for (const Variable each : {a, b}) problem.add(v(each) - 20, atMost, 250);
  const double before = value(a);
  const Variable other = problem.length();
  problem.add(v(other) - 5, equal, 700);
  EXPECT_EQ(value(a), before);
  EXPECT_DOUBLE_EQ(value(a) + value(b), 100);
  EXPECT_TRUE(before == 20 || before == 80) << before;
}

}  // namespace
}  // namespace sim
