#include "tweak/support/PluralForm.h"

namespace {

using enum PluralForm;

// Without a sign: the smallest integer has no positive counterpart.
unsigned long magnitude(long number) {
  const auto bits = static_cast<unsigned long>(number);
  return number < 0 ? 0 - bits : bits;
}

bool isBetween(unsigned long number, unsigned long first, unsigned long last) {
  return number >= first && number <= last;
}

PluralForm arabic(unsigned long number) {
  if (number == 1) return one;
  if (number == 2) return two;
  const unsigned long end = number % 100;
  if (isBetween(end, 3, 10)) return few;
  return isBetween(end, 11, 99) ? many : other;
}

// 2, 3 and 4, also as the last digit; but not 12, 13 and 14.
bool isSlavicFew(unsigned long number) {
  return isBetween(number % 10, 2, 4) && !isBetween(number % 100, 12, 14);
}

PluralForm polish(unsigned long number) {
  if (number == 1) return one;
  return isSlavicFew(number) ? few : many;
}

PluralForm eastSlavic(unsigned long number) {
  if (number % 10 == 1 && number % 100 != 11) return one;
  return isSlavicFew(number) ? few : many;
}

}  // namespace

PluralForm pluralForm(NSString rule, long number) {
  const auto count = magnitude(number);
  const auto is = [rule](const char* name) { return rule.isEqualToString(NSString::string(name)); };
  if (is("one")) return count == 1 ? one : other;
  if (is("zero-or-one")) return count <= 1 ? one : other;
  if (is("hebrew")) return count == 1 ? one : count == 2 ? two : other;
  if (is("arabic")) return arabic(count);
  if (is("polish")) return polish(count);
  if (is("east-slavic")) return eastSlavic(count);
  return other;
}
