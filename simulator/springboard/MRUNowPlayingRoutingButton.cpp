#include "simulator/springboard/MRUNowPlayingRoutingButton.h"

#include "simulator/StandIn.h"

namespace sim {

void MRUNowPlayingRoutingButton::registerClass() {
  StandIn<MRUNowPlayingRoutingButton>("MediaControls", "MRUNowPlayingRoutingButton", "UIButton")
      .property<"packageView", &MRUNowPlayingRoutingButton::packageView>()
      .property<"active", &MRUNowPlayingRoutingButton::active>()
      .readonlyProperty<"isActive", &MRUNowPlayingRoutingButton::active>()
      .partial<"updatePackage", &MRUNowPlayingRoutingButton::updatePackage>("loads no glyph")
      .finish();
}

}  // namespace sim
