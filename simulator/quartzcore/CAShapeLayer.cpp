#include "simulator/quartzcore/CAShapeLayer.h"

#include "simulator/foundation/Kind.h"
#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

objc::Strong<objc::Object> opaqueBlack() {
  if (CGColor::cls() == nullptr) return {};
  auto made = CGColor::make();
  CGColor::of(made.get()).color = {{0, 0, 0, 1}, true};
  return made;
}

const ColorComponents* componentsOf(objc::Object color) {
  const CGColor* state = stateOf<CGColor>(color);
  return state != nullptr ? &state->color : nullptr;
}

}  // namespace

CAShapeLayer::CAShapeLayer()
    : fillColor(opaqueBlack()),
      fillRule(objc::retain(string("non-zero"))),
      lineCap(objc::retain(string("butt"))),
      lineJoin(objc::retain(string("miter"))) {}

const std::vector<PathElement>& CAShapeLayer::elements() const {
  static const std::vector<PathElement> none;
  const CGPath* shape = stateOf<CGPath>(path);
  return shape != nullptr ? shape->elements : none;
}

const ColorComponents* CAShapeLayer::fill() const {
  return componentsOf(fillColor);
}
const ColorComponents* CAShapeLayer::stroke() const {
  return componentsOf(strokeColor);
}

FillRule CAShapeLayer::rule() const {
  return text(fillRule) == "even-odd" ? FillRule::evenOdd : FillRule::nonZero;
}
LineCap CAShapeLayer::cap() const {
  const std::string name = text(lineCap);
  return name == "round" ? LineCap::round : name == "square" ? LineCap::square : LineCap::butt;
}
LineJoin CAShapeLayer::join() const {
  const std::string name = text(lineJoin);
  return name == "round" ? LineJoin::round : name == "bevel" ? LineJoin::bevel : LineJoin::miter;
}

void CAShapeLayer::registerClass() {
  StandIn<CAShapeLayer>("QuartzCore", "CAShapeLayer", "CALayer")
      .property<"path", &CAShapeLayer::path>()
      .property<"fillColor", &CAShapeLayer::fillColor>()
      .property<"strokeColor", &CAShapeLayer::strokeColor>()
      .property<"fillRule", &CAShapeLayer::fillRule>()
      .property<"lineCap", &CAShapeLayer::lineCap>()
      .property<"lineJoin", &CAShapeLayer::lineJoin>()
      .property<"lineDashPattern", &CAShapeLayer::lineDashPattern>()
      .property<"lineWidth", &CAShapeLayer::lineWidth>()
      .property<"lineDashPhase", &CAShapeLayer::lineDashPhase>()
      .property<"miterLimit", &CAShapeLayer::miterLimit>()
      .property<"strokeStart", &CAShapeLayer::strokeStart>()
      .property<"strokeEnd", &CAShapeLayer::strokeEnd>()
      .finish();
}

}  // namespace sim
