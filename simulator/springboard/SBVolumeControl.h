// The host's volume control, iOS 13 and later: volumes by category.
#pragma once

#include "objc/Class.h"

namespace sim {

struct SBVolumeControl : objc::Implementation<SBVolumeControl> {
  // nil when the class is missing.
  static objc::Object sharedInstance();

  float mediaVolume();  // 0 to 1
  // Held to 0..1; callers rely on it. A nil category is an exception.
  void setVolume_forCategory(float level, objc::Object category);

  static void registerClass();
};

}  // namespace sim
