#include "simulator/uikit/UIButton.h"

#include "simulator/StandIn.h"

namespace sim {

void UIButton::registerClass() {
  StandIn<UIButton>("UIKit", "UIButton", "UIControl").finish();
}

}  // namespace sim
