// The person's finger: what it touches is told by touchesBegan:withEvent: and the like.
#pragma once

#include <optional>

#include "objc/Ownership.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

// Points are those of the screen as the interface is drawn on it.
class Finger {
 public:
  // There is one, and the process's.
  static Finger& current();

  bool isDown() const { return bool(touch_); }
  // The view that is touched; nil when nothing takes the touch, and the finger stays up then.
  objc::Object began(CGPoint point);
  // All three must have begun.
  void moved(CGPoint point);
  void ended(CGPoint point);
  void cancelled();

 private:
  void send(SEL selector, long phase, CGPoint point);

  objc::Strong<objc::Object> touch_;  // UITouch, while the finger is down
};

}  // namespace sim
