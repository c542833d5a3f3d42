#include "simulator/mediacontrols/MRUTransportButton.h"

#include "simulator/foundation/Values.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {

using objc::Object;

Object MRUTransportButton::initWithFrame(CGRect frame) {
  const auto made = super<Object, "initWithFrame:">(frame);
  shape = addShape(made, transportPath(TransportSymbol::play));
  tint(shape, whiteColor(0.95));
  return made;
}

void MRUTransportButton::show(TransportSymbol symbol, const char* name) {
  objc::send<void, "setPath:">(shape.get(), CGPath::of(transportPath(symbol)));
  objc::send<void, "setAccessibilityLabel:">(self(), string(name));
}

void MRUTransportButton::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGSize size = sizeOf(Object(self()));
  objc::send<void, "setFrame:">(
      shape.get(), CGRect{{(size.width - glyphSize) / 2, (size.height - glyphSize) / 2},
                          {glyphSize, glyphSize}});
}

void MRUTransportButton::registerClass() {
  StandIn<MRUTransportButton>("MediaControls", "MRUTransportButton", "UIControl")
      .method<"initWithFrame:", &MRUTransportButton::initWithFrame>()
      .method<"layoutSubviews", &MRUTransportButton::layoutSubviews>()
      .finish();
}

}  // namespace sim
