#include "simulator/uikit/touches/UIMotionEvent.h"

#include "simulator/standin/StandIn.h"
#include "simulator/uikit/application/UIWindow.h"

namespace sim {
namespace {

template <objc::FixedString Selector>
void deliver(objc::Object event) {
  constexpr long motionShake = 1;
  objc::Object responder = UIWindow::keyWindow();
  while (responder && !objc::respondsTo<Selector>(responder))
    responder = objc::send<objc::Object, "nextResponder">(responder);
  if (responder) objc::send<void, Selector>(responder, motionShake, event);
}

}  // namespace

void UIMotionEvent::enter(ShakeState state) {
  const objc::Object event(self());
  objc::send<void, "setShakeState:">(event, int(state));
  if (state == began) deliver<"motionBegan:withEvent:">(event);
  if (state == ended) deliver<"motionEnded:withEvent:">(event);
  if (state == cancelled) deliver<"motionCancelled:withEvent:">(event);
}

void UIMotionEvent::registerClass() {
  StandIn<UIMotionEvent>("UIKit", "UIMotionEvent", "UIEvent")
      .property<"shakeState", &UIMotionEvent::shakeState>()
      .finish();
}

}  // namespace sim
