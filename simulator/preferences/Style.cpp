#include "simulator/preferences/Style.h"

#include "objc/Message.h"
#include "simulator/springboard/Shapes.h"
#include "simulator/uikit/views/LayoutDirection.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim::style {
namespace {

using objc::Object;

Object gray(double level) {
  return rgbColor(level / 255, level / 255, (level + 2) / 255);
}

const char* pathOf(Symbol symbol) {
  constexpr const char *right = "M 6 2 L 12 8 L 6 14", *left = "M 10 2 L 4 8 L 10 14";
  if (symbol == Symbol::check) return "M 2 8.5 L 6 13 L 14 3";
  return (symbol == Symbol::forward) != interfaceIsRightToLeft() ? right : left;
}

}  // namespace

Object background() {
  return blackColor(1);
}
Object card() {
  return gray(28);
}
Object pressedCard() {
  return gray(58);
}
Object line() {
  return gray(56);
}
Object secondaryText() {
  return gray(142);
}
Object blue() {
  return rgbColor(10.0 / 255, 132.0 / 255, 1);
}
Object green() {
  return rgbColor(48.0 / 255, 209.0 / 255, 88.0 / 255);
}

CGRect placed(CGRect frame, double width) {
  if (interfaceIsRightToLeft()) frame.origin.x = width - frame.origin.x - frame.size.width;
  return frame;
}

long leading() {
  return interfaceIsRightToLeft() ? 2 : 0;
}
long trailing() {
  return interfaceIsRightToLeft() ? 0 : 2;
}

objc::Strong<Object> addSymbol(Object view, Symbol symbol, Object color) {
  constexpr double lineWidth = 2;
  auto place = addView(view, "UIView");
  setFrame(place.get(), {{}, {symbolSide, symbolSide}});
  objc::send<void, "setUserInteractionEnabled:">(place.get(), false);
  addShapeLayer(objc::send<Object, "layer">(place.get()), pathOf(symbol),
                {nullptr, objc::send<Object, "CGColor">(color), lineWidth});
  return place;
}

}  // namespace sim::style
