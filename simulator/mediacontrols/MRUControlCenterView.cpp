#include "simulator/mediacontrols/MRUControlCenterView.h"

#include "simulator/foundation/Kind.h"
#include "simulator/mediacontrols/MRUTransportButton.h"
#include "simulator/mediacontrols/ModuleVersion.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {

using objc::Object;

Object MRUControlCenterView::initWithFrame(CGRect frame) {
  const auto made = super<Object, "initWithFrame:">(frame);
  if (!isModuleOf16()) return made;
  routingButton = addView(made, "MRUTransportButton");
  if (auto* button = stateOf<MRUTransportButton>(routingButton.get()))
    button->show(TransportSymbol::routes, "routes");
  return made;
}

void MRUControlCenterView::setShowRoutingButton(bool show) {
  showRoutingButton = show;
  setAlpha(routingButton, show ? 1 : 0);
}

void MRUControlCenterView::layoutSubviews() {
  constexpr double inset = 12, top = 10;  // points
  super<void, "layoutSubviews">();
  const double width = sizeOf(Object(self())).width;
  setFrame(routingButton, {{width - inset - glyphSize, top}, {glyphSize, glyphSize}});
}

void MRUControlCenterView::registerClass() {
  using View = MRUControlCenterView;
  StandIn<View>("MediaControls", "MRUControlCenterView", "UIView")
      .method<"initWithFrame:", &View::initWithFrame>()
      .readonlyProperty<"routingButton", &View::routingButton>()
      .readonlyProperty<"showRoutingButton", &View::showRoutingButton>()
      .method<"setShowRoutingButton:", &View::setShowRoutingButton>()
      .partial<"layoutSubviews", &View::layoutSubviews>("measures of the simulator's own")
      .finish();
}

}  // namespace sim
