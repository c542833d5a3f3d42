// The Now Playing module as Control Center loads it.
#pragma once

#include "objc/Class.h"

namespace sim {

struct MRUMediaControlsModule : objc::Implementation<MRUMediaControlsModule> {
  objc::Strong<objc::Object> content;  // MRUControlCenterViewController

  // Made when it is first asked for.
  objc::Object contentViewController();

  static void registerClass();
};

}  // namespace sim
