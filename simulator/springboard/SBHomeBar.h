// The bar at the bottom of an application: a tap, or a swipe that begins there, leads home.
#pragma once

#include <functional>

#include "objc/Class.h"
#include "simulator/coregraphics/Geometry.h"

namespace sim {

struct SBHomeBar : objc::Implementation<SBHomeBar> {
  std::function<void()> goHome;

  objc::Object initWithFrame(CGRect frame);
  void leave();

  static void registerClass();
};

}  // namespace sim
