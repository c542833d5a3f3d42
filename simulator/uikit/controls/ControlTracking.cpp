#include "simulator/uikit/controls/ControlTracking.h"

#include "objc/Message.h"
#include "simulator/uikit/touches/UITouch.h"
#include "simulator/uikit/views/UIView.h"

namespace sim {
namespace {

using objc::Object;

// A finger that has slipped so far off a control still means it.
constexpr double nearness = 70;  // points

bool isNear(Object control, Object touch) {
  const CGPoint place = UITouch::of(touch).locationInView(control);
  const CGRect bounds = UIView::of(control).geometry().bounds;
  return place.x >= bounds.origin.x - nearness && place.y >= bounds.origin.y - nearness &&
         place.x <= bounds.origin.x + bounds.size.width + nearness &&
         place.y <= bounds.origin.y + bounds.size.height + nearness;
}

Object anyOf(Object touches) {
  return objc::send<Object, "anyObject">(touches);
}

void highlight(Object self, bool on) {
  if (UIControl::of(self).highlighted != on) objc::send<void, "setHighlighted:">(self, on);
}

void stop(Object self) {
  UIControl::of(self).tracking = UIControl::of(self).touchInside = false;
  highlight(self, false);
}

void began(Object self, Object touches, Object event) {
  UIControl& control = UIControl::of(self);
  if (!control.enabled) return;
  control.tracking =
      objc::send<bool, "beginTrackingWithTouch:withEvent:">(self, anyOf(touches), event);
  if (!control.tracking) return;
  control.touchInside = true;
  highlight(self, true);
  control.sendActionsForEvents(UIControl::touchDown, event);
}

void moved(Object self, Object touches, Object event) {
  UIControl& control = UIControl::of(self);
  if (!control.tracking) return;
  const Object touch = anyOf(touches);
  const bool wasInside = control.touchInside;
  control.touchInside = isNear(self, touch);
  highlight(self, control.touchInside);
  if (!objc::send<bool, "continueTrackingWithTouch:withEvent:">(self, touch, event))
    return stop(self);
  if (wasInside != control.touchInside)
    control.sendActionsForEvents(wasInside ? UIControl::touchDragExit : UIControl::touchDragEnter,
                                 event);
  control.sendActionsForEvents(
      control.touchInside ? UIControl::touchDragInside : UIControl::touchDragOutside, event);
}

void ended(Object self, Object touches, Object event) {
  UIControl& control = UIControl::of(self);
  if (!control.tracking) return;
  const Object touch = anyOf(touches);
  const bool isInside = isNear(self, touch);
  objc::send<void, "endTrackingWithTouch:withEvent:">(self, touch, event);
  stop(self);
  control.sendActionsForEvents(isInside ? UIControl::touchUpInside : UIControl::touchUpOutside,
                               event);
}

void cancelled(Object self, Object, Object event) {
  UIControl& control = UIControl::of(self);
  if (!control.tracking) return;
  objc::send<void, "cancelTrackingWithEvent:">(self, event);
  stop(self);
  control.sendActionsForEvents(UIControl::touchCancel, event);
}

// What subclasses override.
bool follow(Object, Object, Object) {
  return true;
}
void endFollowing(Object, Object, Object) {}
void cancelFollowing(Object, Object) {}

}  // namespace

void addControlTracking(StandIn<UIControl>& control) {
  control
      .partial<"touchesBegan:withEvent:", &began>(
          "follows touches of views in it, too, that a phone's control leaves to them")
      .method<"touchesMoved:withEvent:", &moved>()
      .method<"touchesEnded:withEvent:", &ended>()
      .method<"touchesCancelled:withEvent:", &cancelled>()
      .method<"beginTrackingWithTouch:withEvent:", &follow>()
      .method<"continueTrackingWithTouch:withEvent:", &follow>()
      .method<"endTrackingWithTouch:withEvent:", &endFollowing>()
      .method<"cancelTrackingWithEvent:", &cancelFollowing>()
      .readonlyProperty<"isTracking", &UIControl::tracking>()
      .readonlyProperty<"isTouchInside", &UIControl::touchInside>();
}

}  // namespace sim
