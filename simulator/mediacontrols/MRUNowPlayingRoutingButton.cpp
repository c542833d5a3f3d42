#include "simulator/mediacontrols/MRUNowPlayingRoutingButton.h"

#include "simulator/foundation/Values.h"
#include "simulator/mediacontrols/Glyphs.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/controls/UIControl.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {

using objc::Object;

Object MRUNowPlayingRoutingButton::initWithFrame(CGRect frame) {
  const auto made = super<Object, "initWithFrame:">(frame);
  objc::send<void, "updatePackage">(made);
  return made;
}

void MRUNowPlayingRoutingButton::setActive(bool isActive) {
  active = isActive;
  objc::send<void, "updatePackageState">(self());
}
void MRUNowPlayingRoutingButton::setHighlighted(bool highlighted) {
  super<void, "setHighlighted:">(highlighted);
  objc::send<void, "updatePackageState">(self());
}
void MRUNowPlayingRoutingButton::setSelected(bool selected) {
  super<void, "setSelected:">(selected);
  objc::send<void, "updatePackageState">(self());
}

void MRUNowPlayingRoutingButton::updatePackage() {
  objc::send<void, "removeFromSuperview">(packageView.get());
  packageView = addView(Object(self()), "UIView");
  objc::send<void, "setUserInteractionEnabled:">(packageView.get(), false);
  setFrame(packageView, {{0, 0}, {glyphSize, glyphSize}});
  triangle = addShape(packageView, routingTriangle());
  waves = addShape(packageView, routingWaves(), 1.8);
  objc::send<void, "updatePackageState">(self());
}

const char* MRUNowPlayingRoutingButton::stateName() const {
  const bool isUsed = UIControl::of(self()).state() != UIControl::normal;
  if (active) return isUsed ? "on selected" : "on";
  return isUsed ? "off selected" : "off";
}

// A package of somebody else's is told the same names. The simulator's own glyph has no states.
void MRUNowPlayingRoutingButton::updatePackageState() {
  if (objc::send<bool, "respondsToSelector:">(packageView.get(), objc::selector<"setStateName:">()))
    objc::send<void, "setStateName:">(packageView.get(), string(stateName()));
  const Object color = active ? rgbColor(0.04, 0.52, 1) : whiteColor(0.95);
  tint(triangle, color);
  tint(waves, color);
}

CGSize MRUNowPlayingRoutingButton::sizeThatFits(CGSize) const {
  constexpr double side = 36;  // points
  return {side, side};
}

void MRUNowPlayingRoutingButton::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGSize size = sizeOf(Object(self()));
  const CGSize glyph = sizeOf(packageView);
  setFrame(packageView,
           {{(size.width - glyph.width) / 2, (size.height - glyph.height) / 2}, glyph});
}

void MRUNowPlayingRoutingButton::registerClass() {
  StandIn<MRUNowPlayingRoutingButton>("MediaControls", "MRUNowPlayingRoutingButton", "MPButton")
      .method<"initWithFrame:", &MRUNowPlayingRoutingButton::initWithFrame>()
      .property<"packageView", &MRUNowPlayingRoutingButton::packageView>()
      .method<"isActive", &MRUNowPlayingRoutingButton::isActive>()
      .method<"setActive:", &MRUNowPlayingRoutingButton::setActive>()
      .property<"deviceType", &MRUNowPlayingRoutingButton::deviceType>()
      .property<"context", &MRUNowPlayingRoutingButton::context>()
      .method<"setHighlighted:", &MRUNowPlayingRoutingButton::setHighlighted>()
      .method<"setSelected:", &MRUNowPlayingRoutingButton::setSelected>()
      .partial<"updatePackage", &MRUNowPlayingRoutingButton::updatePackage>(
          "a glyph of the simulator's own in a plain view, from no package")
      .partial<"updatePackageState", &MRUNowPlayingRoutingButton::updatePackageState>(
          "its own glyph is tinted by hand; the states' names are those that others were seen to "
          "use")
      .partial<"sizeThatFits:", &MRUNowPlayingRoutingButton::sizeThatFits>(
          "a measure of the simulator's own")
      .method<"layoutSubviews", &MRUNowPlayingRoutingButton::layoutSubviews>()
      .finish();
}

}  // namespace sim
