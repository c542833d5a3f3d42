// The person's finger: what it touches is told by touchesBegan:withEvent: and the like.
#pragma once

#include <optional>

#include "objc/Ownership.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

// Points are those of the screen as the interface is drawn on it, unless a view is named.
class Finger {
 public:
  // There is one, and the process's.
  static Finger& current();

  bool isDown() const { return bool(touch_); }
  // The view that is touched; nil when nothing takes the touch, and the finger stays up then.
  objc::Object began(CGPoint point);
  // It must have begun, here and in the following two.
  void moved(CGPoint point);
  void ended(CGPoint point);
  void cancelled();

  // Who would be touched at that point of the view's coordinates, as responderTouchedAt() says.
  // Throws OutOfReach also while the finger is down.
  objc::Object reach(objc::Object view, CGPoint point) const;
  // Comes down at a point of the view and leaves again, there or at another, of which it is told in
  // one move. No time passes, but the main queue goes on after each step. Throws OutOfReach when
  // all is over and the responder, as reach() gives it, has not followed.
  void touch(objc::Object view, objc::Object responder, CGPoint from,
             std::optional<CGPoint> to = std::nullopt);

 private:
  void begin(objc::Object view, CGPoint point);
  void send(SEL selector, long phase, CGPoint point);

  objc::Strong<objc::Object> touch_;  // UITouch, while the finger is down
};

}  // namespace sim
