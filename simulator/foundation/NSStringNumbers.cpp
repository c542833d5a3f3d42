#include "simulator/foundation/NSStringNumbers.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "simulator/foundation/Unicode.h"
#include "simulator/machine/NumberReader.h"

namespace sim {
namespace {

using objc::Object;

bool isDigit(char16_t unit) {
  return unit >= u'0' && unit <= u'9';
}

// The text after white space, as ASCII up to the first unit that no number holds.
std::string numeral(Object self) {
  const std::u16string& units = NSString::of(self).units;
  auto at = std::find_if_not(units.begin(), units.end(), unicode::isWhitespace);
  std::string ascii;
  for (; at != units.end() && *at < 0x80; ++at) ascii += char(*at);
  return ascii;
}

// Clamps to what the type holds; 0 when no digits come first.
template <class Integer>
Integer integer(Object self) {
  const std::string ascii = numeral(self);
  std::string_view digits = ascii;
  if (digits.starts_with('+')) {
    digits.remove_prefix(1);
    if (digits.starts_with('-')) return 0;  // a second sign would be taken
  }
  const auto read = numberAtStart<Integer>(digits);
  if (!read.isOutOfRange) return read.value;
  using Limits = std::numeric_limits<Integer>;
  return digits.front() == '-' ? Limits::min() : Limits::max();
}

double real(Object self) {
  const std::string ascii = numeral(self);
  std::string_view digits = ascii;
  const bool negative = digits.starts_with('-');
  if (negative || digits.starts_with('+')) digits.remove_prefix(1);
  // Neither "inf" nor "nan" is a number here.
  if (digits.empty() || !(isDigit(char16_t(digits.front())) || digits.front() == '.')) return 0;
  const auto read = numberAtStart<double>(digits);
  double value = read.value;
  if (read.isOutOfRange) {
    // Too large or too small; the exponent's sign tells which.
    const std::string_view taken = digits.substr(0, read.length);
    value = taken.find("e-") == taken.npos && taken.find("E-") == taken.npos ? HUGE_VAL : 0;
  }
  return negative ? -value : value;
}

int intValue(Object self) {
  return integer<int>(self);
}
long integerValue(Object self) {
  return integer<long>(self);
}
long long longLongValue(Object self) {
  return integer<long long>(self);
}
double doubleValue(Object self) {
  return real(self);
}
float floatValue(Object self) {
  return float(real(self));
}

// Skips zeroes; YES when Y, y, T, t or another digit comes next.
bool boolValue(Object self) {
  const std::string ascii = numeral(self);
  std::string_view rest = ascii;
  if (rest.starts_with('-') || rest.starts_with('+')) rest.remove_prefix(1);
  rest.remove_prefix(std::min(rest.find_first_not_of('0'), rest.size()));
  return !rest.empty() && std::string_view("YyTt123456789").find(rest.front()) != rest.npos;
}

}  // namespace

void addNumberMethods(StandIn<NSString>& standIn) {
  standIn.method<"intValue", &intValue>()
      .method<"integerValue", &integerValue>()
      .method<"longLongValue", &longLongValue>()
      .method<"doubleValue", &doubleValue>()
      .method<"floatValue", &floatValue>()
      .method<"boolValue", &boolValue>();
}

}  // namespace sim
