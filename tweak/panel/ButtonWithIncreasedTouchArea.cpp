#include "tweak/panel/ButtonWithIncreasedTouchArea.h"

#include "tweak/support/HapticFeedbackHelper.h"

using IconButton = ButtonWithIncreasedTouchArea;

objc::Strong<UIButton> ButtonWithIncreasedTouchArea::make() {
  return objc::retain(UIButton::buttonWithType(cls(), UIButton::Type::custom));
}

bool ButtonWithIncreasedTouchArea::pointInside_withEvent(CGPoint point, objc::Object) {
  constexpr double margin = 20;
  const auto [origin, size] = UIView(self()).bounds();
  return point.x >= origin.x - margin && point.x < origin.x + size.width + margin &&
         point.y >= origin.y - margin && point.y < origin.y + size.height + margin;
}

void ButtonWithIncreasedTouchArea::sendAction_to_forEvent(SEL action, objc::Object target,
                                                          objc::Object event) {
  HapticFeedbackHelper::sendImpact();
  super<void, "sendAction:to:forEvent:">(action, target, event);
}

Class ButtonWithIncreasedTouchArea::registerClass() {
  return objc::ClassBuilder<IconButton>("ButtonWithIncreasedTouchArea", "UIButton")
      .method<"pointInside:withEvent:", &IconButton::pointInside_withEvent>()
      .method<"sendAction:to:forEvent:", &IconButton::sendAction_to_forEvent>()
      .finish();
}
