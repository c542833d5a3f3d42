#include "simulator/uikit/resources/UIFont.h"

#include <functional>

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;

constexpr double bold = 0.4;

Object styled(const FontStyle& style) {
  if (UIFont::cls() == nullptr) return nullptr;
  auto made = UIFont::make();
  UIFont::of(made.get()).style = style;
  return autorelease(std::move(made));
}

Object weighted(double points, double weight) {
  return styled({points, weight, false});
}

Object monospacedDigits(double points, double weight) {
  return styled({points, weight, true});
}

Object boldSystem(double points) {
  return weighted(points, bold);
}

struct NamedWeight {
  double from;
  const char* name;
};
constexpr NamedWeight names[] = {{0.5, "Heavy"},  {0.35, "Bold"},    {0.26, "Semibold"},
                                 {0.1, "Medium"}, {-0.2, "Regular"}, {-0.5, "Light"},
                                 {-0.7, "Thin"},  {-2, "Ultralight"}};

}  // namespace

Object UIFont::fontName() const {
  const NamedWeight* found = names;
  while (style.weight < found->from && found->from > -2) ++found;
  return string(std::string(".SFUI-") + found->name);
}

Object UIFont::system(double points) {
  return weighted(points, 0);
}
Object UIFont::withSize(double points) const {
  FontStyle sized = style;
  sized.pointSize = points;
  return styled(sized);
}

bool UIFont::isEqual(Object other) const {
  const UIFont* font = stateOf<UIFont>(other);
  return font != nullptr && font->style == style;
}
unsigned long UIFont::hash() const {
  return std::hash<double>()(style.pointSize) ^ std::hash<double>()(style.weight);
}

void UIFont::registerClass() {
  StandIn<UIFont>("UIKit", "UIFont", "NSObject")
      .classMethod<"systemFontOfSize:", &UIFont::system>()
      .classMethod<"systemFontOfSize:weight:", &weighted>()
      .classMethod<"boldSystemFontOfSize:", &boldSystem>()
      .classMethod<"monospacedDigitSystemFontOfSize:weight:", &monospacedDigits>()
      .method<"pointSize", &UIFont::pointSize>()
      .method<"ascender", &UIFont::ascender>()
      .method<"descender", &UIFont::descender>()
      .method<"lineHeight", &UIFont::lineHeight>()
      .method<"fontName", &UIFont::fontName>()
      .method<"fontWithSize:", &UIFont::withSize>()
      .method<"copyWithZone:", &shareAsCopy>()
      .method<"isEqual:", &UIFont::isEqual>()
      .method<"hash", &UIFont::hash>()
      .finish();
}

}  // namespace sim
