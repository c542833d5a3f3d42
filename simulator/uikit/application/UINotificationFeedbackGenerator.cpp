#include "simulator/uikit/application/UINotificationFeedbackGenerator.h"

#include "simulator/machine/Journal.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/application/UIFeedbackGenerator.h"

namespace sim {

void UINotificationFeedbackGenerator::notificationOccurred(long type) {
  UIFeedbackGenerator::play("notification type " + notation(type));
}

void UINotificationFeedbackGenerator::registerClass() {
  using Generator = UINotificationFeedbackGenerator;
  StandIn<Generator>("UIKit", "UINotificationFeedbackGenerator", "UIFeedbackGenerator")
      .method<"notificationOccurred:", &Generator::notificationOccurred>()
      .finish();
}

}  // namespace sim
