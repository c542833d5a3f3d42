#include "simulator/coregraphics/CGPath.h"
#include "simulator/quartzcore/CAAnimation.h"
#include "simulator/quartzcore/CAGradientLayer.h"
#include "simulator/quartzcore/CALayer.h"
#include "simulator/quartzcore/CAPackage.h"
#include "simulator/quartzcore/CAShapeLayer.h"
#include "simulator/quartzcore/states/CAState.h"
#include "simulator/quartzcore/states/CAStateController.h"
#include "simulator/quartzcore/states/CAStateElement.h"
#include "simulator/quartzcore/states/CAStateTransition.h"
#include "simulator/standin/Registration.h"

namespace sim {

void registerQuartzCore() {
  CGPath::registerClass();
  CALayer::registerClass();
  CAGradientLayer::registerClass();
  CAShapeLayer::registerClass();
  CAAnimation::registerClass();
  CAStateElement::registerClass();
  CAStateSetValue::registerClass();
  CAStateAddElement::registerClass();
  CAStateRemoveElement::registerClass();
  CAStateAddAnimation::registerClass();
  CAStateRemoveAnimation::registerClass();
  CAState::registerClass();
  CAStateTransitionElement::registerClass();
  CAStateTransition::registerClass();
  CAStateController::registerClass();
  CAPackage::registerClass();
}

}  // namespace sim
