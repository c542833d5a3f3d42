#include "simulator/uikit/UIControl.h"

#include "simulator/StandIn.h"

namespace sim {

void UIControl::registerClass() {
  StandIn<UIControl>("UIKit", "UIControl", "UIView").finish();
}

}  // namespace sim
