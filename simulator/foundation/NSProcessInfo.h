#pragma once

#include "objc/Class.h"

namespace sim {

struct NSOperatingSystemVersion {
  long majorVersion;
  long minorVersion;
  long patchVersion;
};

struct NSProcessInfo : objc::Implementation<NSProcessInfo> {
  static void registerClass();
};

}  // namespace sim

template <>
struct objc::StructEncoding<sim::NSOperatingSystemVersion> {
  static constexpr auto value = objc::FixedString("{?=qqq}");
};
