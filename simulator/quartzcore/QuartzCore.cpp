#include "simulator/Frameworks.h"
#include "simulator/quartzcore/CALayer.h"
#include "simulator/quartzcore/CAShapeLayer.h"

namespace sim {

void registerQuartzCore() {
  CALayer::registerClass();
  CAShapeLayer::registerClass();
}

}  // namespace sim
