#include "simulator/uikit/application/UIResponder.h"

#include "objc/Message.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

objc::Object nextResponder(objc::Object) {
  return nullptr;
}

// Whoever does not want a touch leaves it to the next one.
template <objc::FixedString Selector>
void passOn(objc::Object self, objc::Object touches, objc::Object event) {
  const auto next = objc::send<objc::Object, "nextResponder">(self);
  objc::send<void, Selector>(next, touches, event);
}

}  // namespace

void UIResponder::registerClass() {
  StandIn<UIResponder>("UIKit", "UIResponder", "NSObject")
      .method<"nextResponder", &nextResponder>()
      .method<"touchesBegan:withEvent:", &passOn<"touchesBegan:withEvent:">>()
      .method<"touchesMoved:withEvent:", &passOn<"touchesMoved:withEvent:">>()
      .method<"touchesEnded:withEvent:", &passOn<"touchesEnded:withEvent:">>()
      .method<"touchesCancelled:withEvent:", &passOn<"touchesCancelled:withEvent:">>()
      .finish();
}

}  // namespace sim
