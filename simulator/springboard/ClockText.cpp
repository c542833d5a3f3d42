#include "simulator/springboard/ClockText.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "simulator/foundation/NSLocale.h"

namespace sim {
namespace {

bool countsTwelveHours(const LocaleParts& locale) {
  constexpr std::array<std::string_view, 14> regions = {"US", "CA", "AU", "NZ", "IN", "PK", "PH",
                                                        "EG", "SA", "JO", "KW", "KR", "MX", "CO"};
  if (locale.region.empty())
    return locale.language == "en" || locale.language == "ar" || locale.language == "hi" ||
           locale.language == "ko";
  return std::find(regions.begin(), regions.end(), locale.region) != regions.end();
}

bool usesArabicIndicDigits(const LocaleParts& locale) {
  constexpr std::array<std::string_view, 6> western = {"AE", "DZ", "EH", "LY", "MA", "TN"};
  return locale.language == "ar" &&
         std::find(western.begin(), western.end(), locale.region) == western.end();
}

std::string inArabicIndicDigits(std::string_view text) {
  std::string digits;
  for (const char letter : text) {
    if (letter >= '0' && letter <= '9')
      digits += {'\xD9', char('\xA0' + (letter - '0'))};  // U+0660 and following
    else
      digits += letter;
  }
  return digits;
}

}  // namespace

std::string clockText(double secondsSinceReferenceDate, std::string_view locale) {
  constexpr long minutesPerDay = 24 * 60;
  const long minutes = long(std::floor(secondsSinceReferenceDate / 60));
  const long ofDay = (minutes % minutesPerDay + minutesPerDay) % minutesPerDay;
  const LocaleParts parts = partsOf(locale);
  long hour = ofDay / 60;
  if (countsTwelveHours(parts)) hour = (hour + 11) % 12 + 1;
  const std::string minute = std::to_string(ofDay % 60);
  const std::string text = std::to_string(hour) + ':' + (minute.size() < 2 ? "0" : "") + minute;
  return usesArabicIndicDigits(parts) ? inArabicIndicDigits(text) : text;
}

}  // namespace sim
