// The tick of a choice that changes.
#pragma once

#include "objc/Class.h"

namespace sim {

struct UISelectionFeedbackGenerator : objc::Implementation<UISelectionFeedbackGenerator> {
  void selectionChanged();

  static void registerClass();
};

}  // namespace sim
