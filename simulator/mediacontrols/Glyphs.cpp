#include "simulator/mediacontrols/Glyphs.h"

#include <cmath>
#include <initializer_list>
#include <numbers>
#include <utility>

#include "objc/Message.h"
#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/quartzcore/CAShapeLayer.h"

namespace sim {
namespace {

using objc::Object;
using Kind = PathElement::Kind;

void addPolygon(Path& path, std::initializer_list<CGPoint> corners) {
  Kind kind = Kind::move;
  for (const CGPoint& corner : corners) {
    path.push_back({kind, {corner}});
    kind = Kind::line;
  }
  path.push_back({Kind::close});
}

void addTriangle(Path& path, double left, double right) {
  addPolygon(path, {{left, 10}, {right, 18}, {left, 26}});
}
void addBar(Path& path, double left) {
  addPolygon(path, {{left, 9}, {left + 5, 9}, {left + 5, 27}, {left, 27}});
}

// Clockwise as seen on the screen, in radians from the right.
void addArc(Path& path, CGPoint centre, double radius, double from, double to) {
  constexpr int pieces = 4;
  const double step = (to - from) / pieces;
  const double reach = 4.0 / 3 * std::tan(step / 4) * radius;
  const auto at = [&](double angle) {
    return CGPoint{centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)};
  };
  const auto beside = [&](double angle, double distance) {
    const CGPoint point = at(angle);
    return CGPoint{point.x - distance * std::sin(angle), point.y + distance * std::cos(angle)};
  };
  path.push_back({Kind::move, {at(from)}});
  for (int i = 0; i < pieces; ++i) {
    const double start = from + i * step, end = start + step;
    path.push_back({Kind::cubic, {beside(start, reach), beside(end, -reach), at(end)}});
  }
}

}  // namespace

Path transportPath(TransportSymbol symbol) {
  Path path;
  switch (symbol) {
    case TransportSymbol::previous:
      addTriangle(path, 18, 6);
      addTriangle(path, 30, 18);
      break;
    case TransportSymbol::play:
      addPolygon(path, {{11, 8}, {28, 18}, {11, 28}});
      break;
    case TransportSymbol::pause:
      addBar(path, 10);
      addBar(path, 21);
      break;
    case TransportSymbol::next:
      addTriangle(path, 6, 18);
      addTriangle(path, 18, 30);
      break;
    case TransportSymbol::routes:
      return routingTriangle();
  }
  return path;
}

Path routingTriangle() {
  Path path;
  addPolygon(path, {{18, 19}, {24.5, 27}, {11.5, 27}});
  return path;
}

Path notePath() {
  using std::numbers::pi;
  Path path;
  for (const double x : {12.5, 23.5}) {
    addArc(path, {x, 25}, 3.2, 0, 2 * pi);
    path.push_back({Kind::close});
  }
  addPolygon(path, {{13.7, 11}, {15.7, 11}, {15.7, 25}, {13.7, 25}});
  addPolygon(path, {{24.7, 9}, {26.7, 9}, {26.7, 25}, {24.7, 25}});
  addPolygon(path, {{13.7, 10}, {26.7, 7}, {26.7, 11}, {13.7, 14}});
  return path;
}

// Open at the bottom, where the triangle is.
Path routingWaves() {
  using std::numbers::pi;
  Path path;
  for (const double radius : {3.5, 7.0, 10.5}) addArc(path, {18, 17}, radius, 0.75 * pi, 2.25 * pi);
  return path;
}

objc::Strong<Object> addShape(Object view, Path path, double lineWidth) {
  auto shape = objc::adopt(objc::send<Object, "new">(objc_getClass("CAShapeLayer")));
  objc::send<void, "setFrame:">(shape.get(), CGRect{{}, {glyphSize, glyphSize}});
  objc::send<void, "setPath:">(shape.get(), CGPath::of(std::move(path)));
  objc::send<void, "setLineWidth:">(shape.get(), lineWidth);
  objc::send<void, "setLineCap:">(shape.get(), string("round"));
  if (lineWidth > 0) objc::send<void, "setFillColor:">(shape.get(), nullptr);
  objc::send<void, "addSublayer:">(objc::send<Object, "layer">(view), shape.get());
  return shape;
}

void tint(Object shape, Object color) {
  CAShapeLayer* layer = stateOf<CAShapeLayer>(shape);
  if (layer == nullptr) return;
  const Object drawn = objc::send<Object, "CGColor">(color);
  if (layer->fillColor)
    objc::send<void, "setFillColor:">(shape, drawn);
  else
    objc::send<void, "setStrokeColor:">(shape, drawn);
}

}  // namespace sim
