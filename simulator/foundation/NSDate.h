#pragma once

#include <string>
#include <string_view>

#include "objc/Class.h"

namespace sim {

struct NSDate : objc::Implementation<NSDate> {
  double reference = 0;  // seconds since 2001-01-01 00:00:00 UTC

  static void registerClass();
};

// "2027-01-01 22:00:00 +0000"
std::string dateText(double secondsSinceReferenceDate);

// The reverse, in UTC, with or without the offset; false when the text is no such date.
bool parseDate(std::string_view text, double& secondsSinceReferenceDate);

}  // namespace sim
