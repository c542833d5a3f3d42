#include "tweak/support/PluralForm.h"

namespace {

using enum PluralForm;

bool isBetween(long number, long first, long last) {
  return number >= first && number <= last;
}

// From 11 on the nouns that we count are written alike, so there are no more forms.
PluralForm arabic(long number) {
  if (number == 1) return one;
  if (number == 2) return two;
  return isBetween(number % 100, 3, 10) ? few : other;
}

// Also as the last digit; but 12, 13 and 14 are no few.
bool isSlavicFew(long number) {
  return isBetween(number % 10, 2, 4) && !isBetween(number % 100, 12, 14);
}

PluralForm polish(long number) {
  if (number == 1) return one;
  return isSlavicFew(number) ? few : other;
}

PluralForm eastSlavic(long number) {
  if (number % 10 == 1 && number % 100 != 11) return one;
  return isSlavicFew(number) ? few : other;
}

}  // namespace

PluralForm pluralForm(NSString rule, long number) {
  const auto is = [rule](const char* name) { return rule.isEqualToString(NSString::string(name)); };
  if (is("one")) return number == 1 ? one : other;
  if (is("zero-or-one")) return isBetween(number, 0, 1) ? one : other;
  if (is("hebrew")) return number == 1 ? one : number == 2 ? two : other;
  if (is("arabic")) return arabic(number);
  if (is("polish")) return polish(number);
  if (is("east-slavic")) return eastSlavic(number);
  return other;
}
