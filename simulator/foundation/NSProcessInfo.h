#pragma once

#include "objc/Class.h"

namespace sim {

struct NSOperatingSystemVersion {
  long majorVersion;
  long minorVersion;
  long patchVersion;
};

// Of the phone that is simulated. Parts that the version does not have are 0.
NSOperatingSystemVersion systemVersion();

struct NSProcessInfo : objc::Implementation<NSProcessInfo> {
  static void registerClass();
};

}  // namespace sim

template <>
struct objc::StructEncoding<sim::NSOperatingSystemVersion> {
  static constexpr auto value = objc::FixedString("{?=qqq}");
};
