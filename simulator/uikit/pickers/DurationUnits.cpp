#include "simulator/uikit/pickers/DurationUnits.h"

#include <algorithm>
#include <array>

#include "simulator/foundation/LocaleText.h"
#include "simulator/foundation/NSLocale.h"

namespace sim {

// The platform has words of its own here. They are those of CLDR, mostly hours in full and minutes
// abbreviated; but where the hours in full are long it abbreviates both.
std::string hourUnit(long hours, std::string_view locale) {
  constexpr std::array<std::string_view, 5> abbreviating = {"cs", "de", "pl", "ru", "uk"};
  const std::string language = partsOf(locale).language;
  const bool isShort =
      std::find(abbreviating.begin(), abbreviating.end(), language) != abbreviating.end();
  return unitText("hour", hours, isShort ? UnitWidth::abbreviated : UnitWidth::full, locale);
}

// The same for any number, as an abbreviation is.
std::string minuteUnit(std::string_view locale) {
  constexpr long many = 100;
  return unitText("minute", many, UnitWidth::abbreviated, locale);
}

}  // namespace sim
