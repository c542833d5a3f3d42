#include "simulator/uikit/touches/UIEvent.h"

#include "simulator/standin/StandIn.h"

namespace sim {

void UIEvent::registerClass() {
  StandIn<UIEvent>("UIKit", "UIEvent", "NSObject").finish();
}

}  // namespace sim
