#include "simulator/controlcenter/ModuleSymbols.h"

#include <array>

#include "objc/Message.h"
#include "simulator/springboard/Shapes.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

constexpr double side = 30;  // points, of the square that the symbols are drawn in

struct Drawing {
  const char* filled;
  const char* lines;
};

constexpr std::array<Drawing, 15> drawings = {{
    {"", ""},
    {"", ""},
    {"R 10.5 14 9 7 1.5",
     "M 25 12 C 22 3 8 3 5 12 L 3 9 M 5 12 L 8.5 10.5 M 5 18 C 8 27 22 27 25 18 "
     "M 12.5 14 L 12.5 12 C 12.5 9 17.5 9 17.5 12 L 17.5 14"},
    {"", "M 9 20 L 4 20 L 4 6 L 22 6 L 22 10 M 11 12 L 26 12 L 26 24 L 11 24 Z"},
    {"O 15 15 5",
     "M 15 4 L 15 6 M 15 24 L 15 26 M 4 15 L 6 15 M 24 15 L 26 15 M 7.2 7.2 L 8.6 8.6 "
     "M 21.4 21.4 L 22.8 22.8 M 7.2 22.8 L 8.6 21.4 M 21.4 8.6 L 22.8 7.2"},
    {"M 4 12 L 9 12 L 15 7 L 15 23 L 9 18 L 4 18 Z",
     "M 19 11 C 21 13 21 17 19 19 M 22.5 8 C 26.5 12 26.5 18 22.5 22"},
    {"M 18 5 C 10 6 6 12 7 18 C 8 24 17 28 24 21 C 16 22 12 14 18 5 Z", ""},
    {"M 10 4 L 20 4 L 20 8 L 10 8 Z M 10 10 L 20 10 L 18 14 L 18 26 L 12 26 L 12 14 Z", ""},
    {"", "O 15 16 9 M 15 11 L 15 16 L 19 18 M 4.5 9 L 9 5 M 25.5 9 L 21 5"},
    {"R 10 8 10 4 0.5 O 11 17 1.4 O 15 17 1.4 O 19 17 1.4 O 11 22 1.4 O 15 22 1.4 O 19 22 1.4",
     "R 7 4 16 22 2.5"},
    {"", "M 10 9 L 12 6 L 18 6 L 20 9 L 26 9 L 26 23 L 4 23 L 4 9 Z O 15 16 4.5"},
    {"M 15 3 C 16.5 3 17 5 17 7 L 17 12 L 27 18 L 27 20.5 L 17 17.5 L 17 23 L 20 25.5 L 20 27.5 "
     "L 15 26 L 10 27.5 L 10 25.5 L 13 23 L 13 17.5 L 3 20.5 L 3 18 L 13 12 L 13 7 C 13 5 13.5 3 "
     "15 3 Z",
     ""},
    {"O 15 12 2.4 M 14 13 L 16 13 L 17.5 26 L 12.5 26 Z",
     "M 10.5 16.5 C 8 14 8 10 10.5 7.5 M 19.5 16.5 C 22 14 22 10 19.5 7.5 M 7.5 19.5 C 3.5 15.5 "
     "3.5 "
     "8.5 7.5 4.5 M 22.5 19.5 C 26.5 15.5 26.5 8.5 22.5 4.5"},
    {"O 15 22.5 2.2",
     "M 4 12 C 10 6 20 6 26 12 M 7.6 15.6 C 11.6 11.6 18.4 11.6 22.4 15.6 M 11.2 19.2 C 13.2 17.2 "
     "16.8 17.2 18.8 19.2"},
    {"", "M 8.5 9.5 L 21 20.5 L 15 26 L 15 4 L 21 9.5 L 8.5 20.5"},
}};

}  // namespace

objc::Strong<Object> addModuleSymbol(Object view, ModuleSymbol symbol, CGPoint centre,
                                     Object color) {
  constexpr double lineWidth = 2;
  auto place = addView(view, "UIView");
  setFrame(place, {{centre.x - side / 2, centre.y - side / 2}, {side, side}});
  objc::send<void, "setUserInteractionEnabled:">(place.get(), false);
  const Drawing& drawing = drawings.at(std::size_t(symbol));
  const Object layer = objc::send<Object, "layer">(place.get());
  const Object ink = objc::send<Object, "CGColor">(color);
  if (*drawing.filled != '\0') addShapeLayer(layer, drawing.filled, {ink, nullptr});
  if (*drawing.lines != '\0') addShapeLayer(layer, drawing.lines, {nullptr, ink, lineWidth});
  return place;
}

}  // namespace sim
