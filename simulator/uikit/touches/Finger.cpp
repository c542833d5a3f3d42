#include "simulator/uikit/touches/Finger.h"

#include "objc/Message.h"
#include "simulator/foundation/NSSet.h"
#include "simulator/machine/Phone.h"
#include "simulator/uikit/controls/Actions.h"
#include "simulator/uikit/controls/UIControl.h"
#include "simulator/uikit/touches/Touch.h"
#include "simulator/uikit/touches/UIEvent.h"
#include "simulator/uikit/touches/UITouch.h"
#include "simulator/uikit/views/ViewTree.h"

namespace sim {

using objc::Object;

Finger& Finger::current() {
  return Phone::current().state<Finger>();
}

Object Finger::began(CGPoint point) {
  const Object view = viewOnScreenAt(point);
  if (view) begin(view, point);
  return view;
}

void Finger::begin(Object view, CGPoint point) {
  touch_ = UITouch::make();
  UITouch& touch = UITouch::of(touch_.get());
  touch.view = objc::retain(view);
  touch.place = point;
  send(objc::selector<"touchesBegan:withEvent:">(), UITouch::began, point);
}

void Finger::moved(CGPoint point) {
  send(objc::selector<"touchesMoved:withEvent:">(), UITouch::moved, point);
}

void Finger::ended(CGPoint point) {
  send(objc::selector<"touchesEnded:withEvent:">(), UITouch::ended, point);
  touch_ = {};
}

void Finger::cancelled() {
  const CGPoint point = UITouch::of(touch_.get()).place;
  send(objc::selector<"touchesCancelled:withEvent:">(), UITouch::cancelled, point);
  touch_ = {};
}

Object Finger::reach(Object view, CGPoint point) const {
  if (isDown()) throw OutOfReach("a finger is on the screen already");
  return responderTouchedAt(view, point);
}

void Finger::touch(Object view, Object responder, CGPoint from, std::optional<CGPoint> to) {
  const auto kept = objc::retain(responder);
  MainQueue& queue = Phone::current().queue;
  const CGPoint start = toRoot(view, from), end = toRoot(view, to.value_or(from));
  begin(viewTouchedAt(view, from), start);
  const bool isFollowed = !isTrackedByUIControl(responder) || UIControl::of(responder).tracking;
  queue.runDue();
  if (to) {
    moved(end);
    queue.runDue();
  }
  ended(end);
  if (!isFollowed) throw OutOfReach(nameForPeople(responder) + " does not follow the touch");
}

void Finger::send(SEL selector, long phase, CGPoint point) {
  UITouch& touch = UITouch::of(touch_.get());
  touch.placeBefore = touch.place;
  touch.place = point;
  touch.phase = phase;
  touch.timestamp = seconds(Phone::current().clock.uptime());
  const auto kept = touch.view;  // it may take itself away
  const Object touches = objc::send<Object, "setWithObject:">(
      Object(reinterpret_cast<id>(NSSet::cls())), touch_.get());
  const auto event = UIEvent::make();
  performAction(selector, kept.get(), touches, event.get());
}

}  // namespace sim
