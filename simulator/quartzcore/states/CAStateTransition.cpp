#include "simulator/quartzcore/states/CAStateTransition.h"

#include "simulator/standin/StandIn.h"

namespace sim {

void CAStateTransition::registerClass() {
  StandIn<CAStateTransition>("QuartzCore", "CAStateTransition", "NSObject")
      .property<"fromState", &CAStateTransition::fromState>()
      .property<"toState", &CAStateTransition::toState>()
      .property<"elements", &CAStateTransition::elements>()
      .finish();
}

void CAStateTransitionElement::registerClass() {
  StandIn<CAStateTransitionElement>("QuartzCore", "CAStateTransitionElement", "NSObject")
      .property<"target", &CAStateTransitionElement::target>()
      .property<"key", &CAStateTransitionElement::key>()
      .property<"animation", &CAStateTransitionElement::animation>()
      .property<"beginTime", &CAStateTransitionElement::beginTime>()
      .property<"duration", &CAStateTransitionElement::duration>()
      .property<"enabled", &CAStateTransitionElement::enabled>()
      .finish();
}

}  // namespace sim
