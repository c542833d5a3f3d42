// A finger on the screen, as views are told of it.
#pragma once

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct UITouch : objc::Implementation<UITouch> {
  static constexpr long began = 0, moved = 1, ended = 3, cancelled = 4;

  objc::Strong<objc::Object> view;  // the one that was touched first, all the time
  CGPoint place, placeBefore;       // in the coordinates of the view's root
  long phase = began;
  long tapCount = 1;
  double timestamp = 0;  // seconds of uptime

  objc::Object window() const;  // nil when the view is no longer in one
  // nil stands for the root.
  CGPoint locationInView(objc::Object other) const;
  CGPoint previousLocationInView(objc::Object other) const;

  static void registerClass();
};

}  // namespace sim
