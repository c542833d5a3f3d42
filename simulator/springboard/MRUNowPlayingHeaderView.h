// The header of the Now Playing module: titles and the routing button.
#pragma once

#include "objc/Class.h"
#include "simulator/uikit/Geometry.h"

namespace sim {

struct MRUNowPlayingHeaderView : objc::Implementation<MRUNowPlayingHeaderView> {
  objc::Strong<objc::Object> routingButton;  // MRUNowPlayingRoutingButton
  objc::Strong<objc::Object> labelView;
  long layout = 0;  // 0 the minimised player, 1 the audio routes, 2 the full player
  bool showRoutingButton = false;

  objc::Object initWithFrame(CGRect frame);

  static void registerClass();
};

}  // namespace sim
