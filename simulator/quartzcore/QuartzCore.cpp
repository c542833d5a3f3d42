#include "simulator/Frameworks.h"
#include "simulator/quartzcore/CAGradientLayer.h"
#include "simulator/quartzcore/CALayer.h"
#include "simulator/quartzcore/CAShapeLayer.h"
#include "simulator/quartzcore/CGPath.h"

namespace sim {

void registerQuartzCore() {
  CGPath::registerClass();
  CALayer::registerClass();
  CAGradientLayer::registerClass();
  CAShapeLayer::registerClass();
}

}  // namespace sim
