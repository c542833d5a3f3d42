#include "simulator/uikit/application/UIImpactFeedbackGenerator.h"

#include "simulator/machine/Journal.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/application/UIFeedbackGenerator.h"

namespace sim {

objc::Object UIImpactFeedbackGenerator::initWithStyle(long chosen) {
  style = chosen;
  return super<objc::Object, "init">();
}

void UIImpactFeedbackGenerator::impactOccurred() {
  UIFeedbackGenerator::play("impact style " + notation(style));
}

void UIImpactFeedbackGenerator::registerClass() {
  StandIn<UIImpactFeedbackGenerator>("UIKit", "UIImpactFeedbackGenerator", "UIFeedbackGenerator")
      .method<"initWithStyle:", &UIImpactFeedbackGenerator::initWithStyle>()
      .method<"impactOccurred", &UIImpactFeedbackGenerator::impactOccurred>()
      .finish();
}

}  // namespace sim
