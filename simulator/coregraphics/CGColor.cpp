#include "simulator/coregraphics/CGColor.h"

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/machine/Journal.h"
#include "simulator/standin/StandIn.h"

namespace sim {

using objc::Object;

unsigned long ColorComponents::hash() const {
  unsigned long hash = isGray;
  for (const double value : values) hash = hash * 31 + std::hash<double>()(value);
  return hash;
}

std::string ColorComponents::description() const {
  std::string text = isGray ? "UIExtendedGrayColorSpace" : "UIExtendedSRGBColorSpace";
  for (std::size_t i = isGray ? 2 : 0; i < 4; ++i) text += ' ' + notation(values[i]);
  return text;
}

Object CGColor::components() const {
  std::vector<Object> numbers;
  for (std::size_t i = color.isGray ? 2 : 0; i < 4; ++i) numbers.push_back(number(color.values[i]));
  return array(numbers);
}
bool CGColor::isEqual(Object other) const {
  const CGColor* same = stateOf<CGColor>(other);
  return same != nullptr && same->color == color;
}
unsigned long CGColor::hash() const {
  return color.hash();
}
Object CGColor::description() const {
  return string(color.description());
}

void CGColor::registerClass() {
  StandIn<CGColor>("CoreGraphics", "CGColor", "NSObject")
      .partial<"components", &CGColor::components>("a function, CGColorGetComponents")
      .method<"isEqual:", &CGColor::isEqual>()
      .method<"hash", &CGColor::hash>()
      .partial<"description", &CGColor::description>("shorter")
      .finish();
}

}  // namespace sim
