// The round button of the Now Playing header that opens the audio routes.
#pragma once

#include "objc/Class.h"

namespace sim {

struct MRUNowPlayingRoutingButton : objc::Implementation<MRUNowPlayingRoutingButton> {
  objc::Strong<objc::Object> packageView;
  bool active = false;

  // Loads the routing glyph into the package view.
  void updatePackage() {}

  static void registerClass();
};

}  // namespace sim
