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
  if (symbol != TransportSymbol::routes || waves) return;
  waves = addShape(Object(self()), routingWaves(), 1.8);
  tint(waves, whiteColor(0.95));
}

void MRUTransportButton::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGSize size = sizeOf(Object(self()));
  const CGRect centred = {{(size.width - glyphSize) / 2, (size.height - glyphSize) / 2},
                          {glyphSize, glyphSize}};
  for (const Object each : {shape.get(), waves.get()}) objc::send<void, "setFrame:">(each, centred);
}

void MRUTransportButton::registerClass() {
  StandIn<MRUTransportButton>("MediaControls", "MRUTransportButton", "MPButton")
      .partial<"initWithFrame:", &MRUTransportButton::initWithFrame>(
          "a glyph of the simulator's own, from no package; MRUButton, its superclass before 16.4, "
          "is "
          "left out")
      .method<"layoutSubviews", &MRUTransportButton::layoutSubviews>()
      .finish();
}

}  // namespace sim
