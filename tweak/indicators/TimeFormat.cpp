#include "tweak/indicators/TimeFormat.h"

#include "tweak/support/Decimal.h"
#include "tweak/support/LocalizationHelper.h"

id timeFormatted(int seconds) {
  constexpr int width = 2;
  const auto text = NSMutableString::string();
  if (seconds >= 3600) {
    text.appendString(NSString::string(Decimal(seconds / 3600, width).text()));
    text.appendString(":"_ns);
  }
  text.appendString(NSString::string(Decimal(seconds / 60 % 60, width).text()));
  text.appendString(":"_ns);
  text.appendString(NSString::string(Decimal(seconds % 60, width).text()));
  return LocalizationHelper::replaceNumbersWithLocalizedNumbersFromString(text).get();
}

// Out of range the phone's processor saturates; C++ leaves it open, so it is written out.
int wholeSeconds(double seconds) {
  constexpr float limit = 2147483648.0f;
  const auto narrowed = float(seconds);
  if (narrowed >= limit) return 2147483647;
  if (narrowed < -limit) return -2147483647 - 1;
  return int(narrowed);
}
