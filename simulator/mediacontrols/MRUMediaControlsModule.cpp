#include "simulator/mediacontrols/MRUMediaControlsModule.h"

#include "simulator/mediacontrols/MRUControlCenterViewController.h"
#include "simulator/standin/StandIn.h"

namespace sim {

objc::Object MRUMediaControlsModule::contentViewController() {
  if (!content) content = MRUControlCenterViewController::make();
  return content;
}

void MRUMediaControlsModule::registerClass() {
  StandIn<MRUMediaControlsModule>("MediaControls", "MRUMediaControlsModule", "NSObject")
      .method<"contentViewController", &MRUMediaControlsModule::contentViewController>()
      .finish();
}

}  // namespace sim
