#include "simulator/uikit/UIViewController.h"

#include "simulator/StandIn.h"

namespace sim {

void UIViewController::registerClass() {
  StandIn<UIViewController>("UIKit", "UIViewController", "UIResponder").finish();
}

}  // namespace sim
