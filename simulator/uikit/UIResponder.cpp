#include "simulator/uikit/UIResponder.h"

#include "simulator/StandIn.h"

namespace sim {

void UIResponder::registerClass() {
  StandIn<UIResponder>("UIKit", "UIResponder", "NSObject").finish();
}

}  // namespace sim
