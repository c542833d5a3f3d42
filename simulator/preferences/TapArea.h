// What takes taps, and drags that scroll what it lies in.
#pragma once

#include <functional>

#include "objc/Class.h"

namespace sim {

struct TapArea : objc::Implementation<TapArea> {
  // Told how far the finger has gone down since it was last told, in points.
  std::function<void(double)> dragged;

  // A finger that drags does not tap.
  void onTap(std::function<void()> does);

  static void registerClass();

 private:
  bool beginTracking(objc::Object touch, objc::Object event);
  bool continueTracking(objc::Object touch, objc::Object event);
  void tap();

  std::function<void()> tapped_;
  double fingerAt_ = 0;  // y on the screen, in points
  double way_ = 0;       // of the finger, down
  bool isDrag_ = false;
};

}  // namespace sim
