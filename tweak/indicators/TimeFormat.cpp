#include "tweak/indicators/TimeFormat.h"

#include "tweak/support/Arithmetic.h"
#include "tweak/support/LocalizationHelper.h"

// C++ and the format cut and fill negative numbers alike on both processors: -5 is "00:-5".
id timeFormatted(int seconds) {
  const int minutes = seconds / 60 % 60;
  const auto text =
      seconds < 3600
          ? NSString::stringWithFormat("%02d:%02d"_ns, minutes, seconds % 60)
          : NSString::stringWithFormat("%02d:%02d:%02d"_ns, seconds / 3600, minutes, seconds % 60);
  return LocalizationHelper::replaceNumbersWithLocalizedNumbersFromString(text).get();
}

// Through single precision, as the label has always been told it: of a night of ten hours it keeps
// steps of four milliseconds, so that 35999.999 seconds read as ten hours.
int wholeSeconds(double seconds) {
  return saturatingCast<int>(float(seconds));
}
