#include "simulator/uikit/touches/UITouch.h"

#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewTree.h"

namespace sim {
namespace {

using objc::Object;

CGPoint in(Object view, CGPoint place) {
  return view ? fromRoot(view, place) : place;
}

}  // namespace

Object UITouch::window() const {
  return windowOf(view.get());
}

CGPoint UITouch::locationInView(Object other) const {
  return in(other, place);
}

CGPoint UITouch::previousLocationInView(Object other) const {
  return in(other, placeBefore);
}

void UITouch::registerClass() {
  StandIn<UITouch>("UIKit", "UITouch", "NSObject")
      .method<"window", &UITouch::window>()
      .method<"locationInView:", &UITouch::locationInView>()
      .method<"previousLocationInView:", &UITouch::previousLocationInView>()
      .readonlyProperty<"view", &UITouch::view>()
      .readonlyProperty<"phase", &UITouch::phase>()
      .readonlyProperty<"tapCount", &UITouch::tapCount>()
      .readonlyProperty<"timestamp", &UITouch::timestamp>()
      .finish();
}

}  // namespace sim
