// Taps, as of things that collide.
#pragma once

#include "objc/Class.h"

namespace sim {

struct UIImpactFeedbackGenerator : objc::Implementation<UIImpactFeedbackGenerator> {
  long style = 1;  // 0 light, 1 medium, 2 heavy, 3 soft, 4 rigid

  objc::Object initWithStyle(long chosen);
  void impactOccurred();

  static void registerClass();
};

}  // namespace sim
