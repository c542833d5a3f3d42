#include "simulator/quartzcore/states/CAState.h"

#include "simulator/standin/StandIn.h"

namespace sim {

void CAState::registerClass() {
  StandIn<CAState>("QuartzCore", "CAState", "NSObject")
      .property<"name", &CAState::name>()
      .property<"basedOn", &CAState::basedOn>()
      .property<"elements", &CAState::elements>()
      .property<"nextDelay", &CAState::nextDelay>()
      .property<"previousDelay", &CAState::previousDelay>()
      .property<"enabled", &CAState::enabled>()
      .readonlyProperty<"isEnabled", &CAState::enabled>()
      .property<"initial", &CAState::initial>()
      .readonlyProperty<"isInitial", &CAState::initial>()
      .property<"locked", &CAState::locked>()
      .readonlyProperty<"isLocked", &CAState::locked>()
      .finish();
}

}  // namespace sim
