#include "simulator/uikit/UIColor.h"

#include "simulator/StandIn.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/phone/Journal.h"

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
Object copy(Object self, void*) {
  return objc::retain(self).detach();
}

unsigned long hashOf(const ColorComponents& components) {
  unsigned long hash = components.isGray;
  for (const double value : components.values) hash = hash * 31 + std::hash<double>()(value);
  return hash;
}

// "UIExtendedSRGBColorSpace 0 0.478 1 1"
std::string written(const ColorComponents& components) {
  std::string text = components.isGray ? "UIExtendedGrayColorSpace" : "UIExtendedSRGBColorSpace";
  for (std::size_t i = components.isGray ? 2 : 0; i < 4; ++i)
    text += ' ' + notation(components.values[i]);
  return text;
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
  return hashOf(components);
}
Object UIColor::description() const {
  return string(written(components));
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
      .method<"copyWithZone:", &copy>()
      .method<"colorWithAlphaComponent:", &UIColor::colorWithAlphaComponent>()
      .method<"CGColor", &UIColor::coreGraphicsColor>()
      .method<"isEqual:", &UIColor::isEqual>()
      .method<"hash", &UIColor::hash>()
      .method<"description", &UIColor::description>()
      .finish();
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
  return hashOf(color);
}
Object CGColor::description() const {
  return string(written(color));
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
