#pragma once

#include <compare>
#include <cstdint>
#include <limits>
#include <string>
#include <type_traits>

#include "objc/Class.h"

namespace sim {

struct NSNumber : objc::Implementation<NSNumber> {
  char letter = 'q';         // of its type encoding; 'B' for a boolean
  std::int64_t integer = 0;  // the bits of an unsigned number, too
  double real = 0;           // of 'f' and 'd'

  bool isBoolean() const { return letter == 'B'; }
  bool isReal() const { return letter == 'f' || letter == 'd'; }
  bool isUnsigned() const {
    return letter == 'Q' || letter == 'I' || letter == 'S' || letter == 'C';
  }

  // Converted as arm64 does it: reals outside the range give the nearest end of it.
  template <class Number>
  Number as() const {
    if constexpr (std::is_same_v<Number, bool>) {
      return isReal() ? real != 0 : integer != 0;
    } else if constexpr (std::is_floating_point_v<Number>) {
      return isReal() ? Number(real) : isUnsigned() ? Number(bits()) : Number(integer);
    } else {
      return isReal() ? truncated<Number>(real) : Number(integer);
    }
  }
  std::uint64_t bits() const { return static_cast<std::uint64_t>(integer); }

  std::string text() const;
  std::partial_ordering compareTo(const NSNumber& other) const;

  static void registerClass();

 private:
  template <class Integer>
  static Integer truncated(double value) {
    using Limits = std::numeric_limits<Integer>;
    if (value != value) return 0;
    if (value <= double(Limits::min())) return Limits::min();
    if (value >= double(Limits::max())) return Limits::max();
    return Integer(value);
  }
};

// Autoreleased.
template <class Number>
objc::Object numberOf(Number value) {
  objc::Strong<objc::Object> made = NSNumber::make();
  NSNumber& state = NSNumber::of(made.get());
  state.letter = objc::encode<Number>().text[0];
  if constexpr (std::is_floating_point_v<Number>)
    state.real = value;
  else
    state.integer = std::int64_t(value);
  return autorelease(std::move(made));
}

}  // namespace sim
