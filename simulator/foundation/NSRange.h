#pragma once

#include "objc/Encoding.h"

namespace sim {

struct NSRange {
  unsigned long location;
  unsigned long length;
};

inline constexpr unsigned long NSNotFound = 0x7fffffffffffffff;

}  // namespace sim

template <>
struct objc::StructEncoding<sim::NSRange> {
  static constexpr auto value = objc::FixedString("{_NSRange=QQ}");
};
