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
      .flag<"enabled", "isEnabled", &CAState::enabled>()
      .flag<"initial", "isInitial", &CAState::initial>()
      .flag<"locked", "isLocked", &CAState::locked>()
      .finish();
}

}  // namespace sim
