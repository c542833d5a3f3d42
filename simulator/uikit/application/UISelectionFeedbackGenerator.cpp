#include "simulator/uikit/application/UISelectionFeedbackGenerator.h"

#include "simulator/standin/StandIn.h"
#include "simulator/uikit/application/UIFeedbackGenerator.h"

namespace sim {

void UISelectionFeedbackGenerator::selectionChanged() {
  UIFeedbackGenerator::play("selection");
}

void UISelectionFeedbackGenerator::registerClass() {
  using Generator = UISelectionFeedbackGenerator;
  StandIn<Generator>("UIKit", "UISelectionFeedbackGenerator", "UIFeedbackGenerator")
      .method<"selectionChanged", &Generator::selectionChanged>()
      .finish();
}

}  // namespace sim
