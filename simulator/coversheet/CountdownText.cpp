#include "simulator/coversheet/CountdownText.h"

#include <cmath>

#include "simulator/foundation/LocaleText.h"
#include "simulator/machine/Phone.h"

namespace sim {

std::string countdownText(double secondsLeft) {
  const long left = std::lround(std::ceil(secondsLeft));
  const auto twoDigits = [](long value) { return (value < 10 ? "0" : "") + std::to_string(value); };
  const long hours = left / 3600, minutes = left / 60 % 60;
  const std::string before =
      hours > 0 ? std::to_string(hours) + ':' + twoDigits(minutes) : std::to_string(minutes);
  return withLocaleDigits(before + ':' + twoDigits(left % 60), Phone::current().setup.locale);
}

}  // namespace sim
