#include "simulator/quartzcore/CAShapeLayer.h"

#include "simulator/StandIn.h"

namespace sim {

void CAShapeLayer::registerClass() {
  StandIn<CAShapeLayer>("QuartzCore", "CAShapeLayer", "CALayer")
      .property<"path", &CAShapeLayer::path>()
      .property<"fillColor", &CAShapeLayer::fillColor>()
      .property<"strokeColor", &CAShapeLayer::strokeColor>()
      .property<"lineWidth", &CAShapeLayer::lineWidth>()
      .finish();
}

}  // namespace sim
