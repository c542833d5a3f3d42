#include "simulator/foundation/NSNumberFormatter.h"

#include <array>
#include <cmath>
#include <cstdio>

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/NSLocale.h"
#include "simulator/foundation/NSNumber.h"
#include "simulator/foundation/NSString.h"
#include "simulator/foundation/Unicode.h"
#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;

constexpr char16_t westernZero = u'0';
constexpr char16_t arabicIndicZero = 0x0660;
constexpr char16_t extendedArabicIndicZero = 0x06f0;

// Arabic is written with Western digits from Morocco to Libya and on the Gulf's south coast.
bool usesWesternDigits(std::string_view region) {
  for (const std::string_view western : {"AE", "DZ", "EH", "LY", "MA", "TN"})
    if (region == western) return true;
  return false;
}

char16_t zeroOf(const LocaleParts& locale) {
  if (locale.language == "ar" && !usesWesternDigits(locale.region)) return arabicIndicZero;
  if (locale.language == "ckb") return arabicIndicZero;
  if (locale.language == "fa" || locale.language == "ps") return extendedArabicIndicZero;
  if (locale.language == "mr" || locale.language == "ne") return 0x0966;
  if (locale.language == "bn" || locale.language == "as") return 0x09e6;
  if (locale.language == "my") return 0x1040;
  return westernZero;
}

// What keeps a minus sign on the left of its number where text runs to the left.
std::u16string minusOf(const LocaleParts& locale, char16_t zero) {
  if (locale.language == "ar") return zero == arabicIndicZero ? u"\u061c-" : u"\u200e-";
  if (locale.language == "fa") return u"\u200e\u2212";
  return u"-";
}

// A whole number, halves to the even one.
std::string wholeDigits(const NSNumber& number) {
  if (!number.isReal()) return number.text();
  std::array<char, 400> digits;  // the largest double has 309
  std::snprintf(digits.data(), digits.size(), "%.0f", std::nearbyint(number.real));
  return digits.data();
}

}  // namespace

Object NSNumberFormatter::effectiveLocale() const {
  if (locale) return locale;
  return objc::send<Object, "currentLocale">(objc_getClass("NSLocale"));
}

void NSNumberFormatter::setLocale(Object given) {
  locale = objc::retain(given);
}

Object NSNumberFormatter::stringFromNumber(Object number) const {
  const NSNumber* value = stateOf<NSNumber>(number);
  if (value == nullptr) return nullptr;
  const LocaleParts parts =
      partsOf(text(objc::send<Object, "localeIdentifier">(effectiveLocale())));
  const char16_t zero = zeroOf(parts);
  std::u16string result;
  for (const char letter : wholeDigits(*value)) {
    if (letter == '-')
      result += minusOf(parts, zero);
    else if (letter >= '0' && letter <= '9')
      result += char16_t(zero + (letter - '0'));
    else
      result += char16_t(letter);
  }
  return stringOf(result);
}

void NSNumberFormatter::registerClass() {
  StandIn<NSNumberFormatter>("Foundation", "NSNumberFormatter", "NSObject")
      .method<"locale", &NSNumberFormatter::effectiveLocale>()
      .method<"setLocale:", &NSNumberFormatter::setLocale>()
      .partial<"stringFromNumber:", &NSNumberFormatter::stringFromNumber>(
          "the style of a new formatter only: whole numbers without grouping; other digits than "
          "Western ones for ar, as, bn, ckb, fa, mr, my, ne and ps")
      .finish();
}

}  // namespace sim
