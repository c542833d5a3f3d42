#include "simulator/foundation/NSNumberFormatter.h"

#include <array>
#include <cstdio>

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/LocaleText.h"
#include "simulator/foundation/NSNumber.h"
#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;

// With all the digits that a value has.
std::string decimal(const NSNumber& number) {
  if (!number.isReal()) return number.text();
  std::array<char, 40> digits;
  std::snprintf(digits.data(), digits.size(), "%.17g", number.real);
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
  return string(
      numberText(decimal(*value), text(objc::send<Object, "localeIdentifier">(effectiveLocale()))));
}

void NSNumberFormatter::registerClass() {
  StandIn<NSNumberFormatter>("Foundation", "NSNumberFormatter", "NSObject")
      .method<"locale", &NSNumberFormatter::effectiveLocale>()
      .method<"setLocale:", &NSNumberFormatter::setLocale>()
      .partial<"stringFromNumber:", &NSNumberFormatter::stringFromNumber>(
          "the style of a new formatter only: whole numbers without grouping")
      .finish();
}

}  // namespace sim
