#pragma once

#include "objc/Encoding.h"

namespace sim {

struct UIEdgeInsets {  // points
  double top = 0;
  double left = 0;
  double bottom = 0;
  double right = 0;
  bool operator==(const UIEdgeInsets&) const = default;
};

}  // namespace sim

template <>
struct objc::StructEncoding<sim::UIEdgeInsets> {
  static constexpr auto value = objc::FixedString("{UIEdgeInsets=dddd}");
};
