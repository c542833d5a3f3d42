#include "simulator/mediacontrols/MPButton.h"

#include "simulator/foundation/Kind.h"
#include "simulator/standin/StandIn.h"

namespace sim {
namespace {

using objc::Object;

Object easyTouchButtonWithType(id cls, long type) {
  constexpr double reach = -24;  // points; what later systems give the header's buttons
  const Object made = objc::send<Object, "buttonWithType:">(Object(cls), type);
  if (auto* button = stateOf<MPButton>(made)) button->hitRectInsets = {reach, reach, reach, reach};
  return made;
}

}  // namespace

bool MPButton::pointInside(CGPoint point, Object) const {
  const CGRect bounds = objc::send<CGRect, "bounds">(self());
  const UIEdgeInsets& in = hitRectInsets;
  return CGRect{{bounds.origin.x + in.left, bounds.origin.y + in.top},
                {bounds.size.width - in.left - in.right, bounds.size.height - in.top - in.bottom}}
      .contains(point);
}

void MPButton::registerClass() {
  StandIn<MPButton>("MediaPlayer", "MPButton", "UIButton")
      .factory<"easyTouchButtonWithType:", &easyTouchButtonWithType>()
      .property<"hitRectInsets", &MPButton::hitRectInsets>()
      .property<"alignmentRectInsets", &MPButton::alignmentRectInsets>()
      .partial<"pointInside:withEvent:", &MPButton::pointInside>(
          "no hold interval; easy ones reach as far as later systems let the header's")
      .finish();
}

}  // namespace sim
