#include "tweak/panel/ButtonWithIncreasedTouchArea.h"

#include "objc/Class.h"
#include "tweak/support/HapticFeedbackHelper.h"

namespace {

struct ButtonWithIncreasedTouchAreaImplementation
    : objc::Implementation<ButtonWithIncreasedTouchAreaImplementation> {
  // For hit testing alone: the frame stays as it is. A point on the lower or right edge is outside,
  // as for the platform's own rectangles.
  bool pointInside_withEvent(CGPoint point, objc::Object) {
    constexpr double margin = 20;  // points
    const auto [origin, size] = UIView(self()).bounds();
    return point.x >= origin.x - margin && point.x < origin.x + size.width + margin &&
           point.y >= origin.y - margin && point.y < origin.y + size.height + margin;
  }

  // Before the action: one that takes long does not hold the answer up.
  void sendAction_to_forEvent(SEL action, objc::Object target, objc::Object event) {
    HapticFeedbackHelper::sendImpact();
    super<void, "sendAction:to:forEvent:">(action, target, event);
  }
};

using IconButton = ButtonWithIncreasedTouchAreaImplementation;

}  // namespace

objc::Strong<ButtonWithIncreasedTouchArea> ButtonWithIncreasedTouchArea::make() {
  const auto made = UIButton::buttonWithType(IconButton::cls(), Type::custom);
  return objc::retain(objc::as<ButtonWithIncreasedTouchArea>(made));
}

objc::Registration ButtonWithIncreasedTouchArea::registerClass() {
  return objc::ClassBuilder<IconButton>("ButtonWithIncreasedTouchArea", "UIButton")
      .method<"pointInside:withEvent:", &IconButton::pointInside_withEvent>()
      .method<"sendAction:to:forEvent:", &IconButton::sendAction_to_forEvent>()
      .finish();
}
