// Arithmetic that C++ leaves undefined and the phone's processor does not.
#pragma once

#include <concepts>
#include <limits>

// Cut toward zero. Beyond the type's ends its nearest end, and 0 for what is not a number, as the
// processor's own conversion gives: a stored date may be centuries away.
template <std::signed_integral Integer, std::floating_point Real>
constexpr Integer saturatingCast(Real value) {
  using Limits = std::numeric_limits<Integer>;
  // One beyond the greatest Integer, which a Real need not hold; this power of two it does.
  constexpr Real end = -Real(Limits::min());
  if (value >= end) return Limits::max();
  if (value >= -end) return Integer(value);
  return value < -end ? Limits::min() : Integer(0);  // neither: not a number
}

// Wraps around: a setting or a stored count may be any number.
constexpr long wrappingDifference(long left, long right) {
  return long(static_cast<unsigned long>(left) - static_cast<unsigned long>(right));
}
