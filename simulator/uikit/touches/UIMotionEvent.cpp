#include "simulator/uikit/touches/UIMotionEvent.h"

#include "simulator/standin/StandIn.h"

namespace sim {

void UIMotionEvent::registerClass() {
  StandIn<UIMotionEvent>("UIKit", "UIMotionEvent", "UIEvent")
      .property<"shakeState", &UIMotionEvent::shakeState>()
      .finish();
}

}  // namespace sim
