#include "simulator/uikit/resources/UIColor.h"

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;

Object colorOf(const ColorComponents& components) {
  if (UIColor::cls() == nullptr) return nullptr;
  auto made = UIColor::make();
  UIColor::of(made.get()).components = components;
  return autorelease(std::move(made));
}

Object rgb(double red, double green, double blue, double alpha) {
  return colorOf({{red, green, blue, alpha}, false});
}
Object gray(double white, double alpha) {
  return colorOf({{white, white, white, alpha}, true});
}
Object white() {
  return gray(1, 1);
}
Object black() {
  return gray(0, 1);
}
Object clear() {
  return gray(0, 0);
}
Object red() {
  return rgb(1, 0, 0, 1);
}

Object initRgb(Object self, double red, double green, double blue, double alpha) {
  UIColor::of(self).components = {{red, green, blue, alpha}, false};
  return self;
}
Object initGray(Object self, double white, double alpha) {
  UIColor::of(self).components = {{white, white, white, alpha}, true};
  return self;
}
}  // namespace

Object UIColor::systemBlue() {
  return rgb(0, 122.0 / 255, 1, 1);
}

Object UIColor::colorWithAlphaComponent(double alpha) const {
  ColorComponents changed = components;
  changed.values[3] = alpha;
  return colorOf(changed);
}

Object UIColor::coreGraphicsColor() const {
  if (CGColor::cls() == nullptr) return nullptr;
  auto made = CGColor::make();
  CGColor::of(made.get()).color = components;
  return autorelease(std::move(made));
}

bool UIColor::isEqual(Object other) const {
  const UIColor* color = stateOf<UIColor>(other);
  return color != nullptr && color->components == components;
}
unsigned long UIColor::hash() const {
  return components.hash();
}
Object UIColor::description() const {
  return string(components.description());
}

void UIColor::registerClass() {
  StandIn<UIColor>("UIKit", "UIColor", "NSObject")
      .classMethod<"whiteColor", &white>()
      .classMethod<"blackColor", &black>()
      .classMethod<"clearColor", &clear>()
      .classMethod<"redColor", &red>()
      .partialClassMethod<"systemBlueColor", &UIColor::systemBlue>("as in light appearance")
      .classMethod<"colorWithRed:green:blue:alpha:", &rgb>()
      .classMethod<"colorWithWhite:alpha:", &gray>()
      .method<"initWithRed:green:blue:alpha:", &initRgb>()
      .method<"initWithWhite:alpha:", &initGray>()
      .method<"copyWithZone:", &shareAsCopy>()
      .method<"colorWithAlphaComponent:", &UIColor::colorWithAlphaComponent>()
      .method<"CGColor", &UIColor::coreGraphicsColor>()
      .method<"isEqual:", &UIColor::isEqual>()
      .method<"hash", &UIColor::hash>()
      .method<"description", &UIColor::description>()
      .finish();
}

}  // namespace sim
