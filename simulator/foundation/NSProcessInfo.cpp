#include "simulator/foundation/NSProcessInfo.h"

#include <algorithm>
#include <compare>
#include <string_view>
#include <tuple>

#include "simulator/foundation/Values.h"
#include "simulator/machine/NumberReader.h"
#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;

Object processInfo() {
  return onlyObject<NSProcessInfo>();
}

Object processName(Object) {
  return string(Phone::current().setup.processName);
}

int processIdentifier(Object) {
  return 58;
}

double systemUptime(Object) {
  return seconds(Phone::current().clock.uptime());
}

// Parts that the version does not have are 0.
NSOperatingSystemVersion operatingSystemVersion(Object) {
  NSOperatingSystemVersion version = {};
  std::string_view text = Phone::current().setup.systemVersion;
  for (long* part : {&version.majorVersion, &version.minorVersion, &version.patchVersion}) {
    *part = takeNumber<long>(text).value_or(0);
    text.remove_prefix(std::min<std::size_t>(1, text.size()));  // the point
  }
  return version;
}

bool isAtLeast(Object self, NSOperatingSystemVersion wanted) {
  const NSOperatingSystemVersion mine = operatingSystemVersion(self);
  return std::tie(mine.majorVersion, mine.minorVersion, mine.patchVersion) >=
         std::tie(wanted.majorVersion, wanted.minorVersion, wanted.patchVersion);
}

Object operatingSystemVersionString(Object) {
  return string("Version " + Phone::current().setup.systemVersion);
}

}  // namespace

void NSProcessInfo::registerClass() {
  StandIn<NSProcessInfo>("Foundation", "NSProcessInfo", "NSObject")
      .classMethod<"processInfo", &processInfo>()
      .method<"processName", &processName>()
      .partial<"processIdentifier", &processIdentifier>("the same in every play")
      .method<"systemUptime", &systemUptime>()
      .method<"operatingSystemVersion", &operatingSystemVersion>()
      .method<"isOperatingSystemAtLeastVersion:", &isAtLeast>()
      .partial<"operatingSystemVersionString", &operatingSystemVersionString>(
          "without the build number")
      .finish();
}

}  // namespace sim
