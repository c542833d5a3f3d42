// What every kind of haptic feedback has in common.
#pragma once

#include <string>

#include "objc/Class.h"

namespace sim {

struct UIFeedbackGenerator : objc::Implementation<UIFeedbackGenerator> {
  void prepare() {}

  // The phone makes it felt, which the journal notes, if it can.
  static void play(const std::string& feedback);

  static void registerClass();
};

}  // namespace sim
