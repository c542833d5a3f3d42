#include "simulator/uikit/application/UIFeedbackGenerator.h"

#include "simulator/machine/Phone.h"
#include "simulator/standin/StandIn.h"

namespace sim {

void UIFeedbackGenerator::play(const std::string& feedback) {
  constexpr long everyKind = 2;
  Phone& phone = Phone::current();
  if (phone.setup.feedbackSupportLevel >= everyKind) phone.journal.record("haptic " + feedback);
}

void UIFeedbackGenerator::registerClass() {
  StandIn<UIFeedbackGenerator>("UIKit", "UIFeedbackGenerator", "NSObject")
      .partial<"prepare", &UIFeedbackGenerator::prepare>("feedback is always prompt")
      .finish();
}

}  // namespace sim
