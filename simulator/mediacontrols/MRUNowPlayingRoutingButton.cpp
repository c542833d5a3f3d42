#include "simulator/mediacontrols/MRUNowPlayingRoutingButton.h"

#include "simulator/mediacontrols/Glyphs.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/controls/UIControl.h"
#include "simulator/uikit/views/ViewAccessibility.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {

using objc::Object;

namespace {

// It is a button to UIKit, too.
unsigned long routingButtonTraits(Object self) {
  return accessibilityTraitsOr(self.get(),
                               ViewAccessibility::button | UIControl::of(self).stateTraits());
}
bool routingButtonIsElement(Object self) {
  return isAccessibilityElementOr(self.get(), true);
}

}  // namespace

Object MRUNowPlayingRoutingButton::initWithFrame(CGRect frame) {
  const auto made = super<Object, "initWithFrame:">(frame);
  objc::send<void, "updatePackage">(made);
  return made;
}

void MRUNowPlayingRoutingButton::setActive(bool isActive) {
  active = isActive;
  tintGlyph();
}

void MRUNowPlayingRoutingButton::updatePackage() {
  objc::send<void, "removeFromSuperview">(packageView.get());
  packageView = addView(Object(self()), "UIView");
  objc::send<void, "setUserInteractionEnabled:">(packageView.get(), false);
  setFrame(packageView, {{0, 0}, {glyphSize, glyphSize}});
  triangle = addShape(packageView, routingTriangle());
  waves = addShape(packageView, routingWaves(), 1.8);
  tintGlyph();
}

// A subclass with a glyph of its own keeps that one's colours.
void MRUNowPlayingRoutingButton::tintGlyph() {
  const Object color = active ? rgbColor(0.04, 0.52, 1) : whiteColor(0.95);
  tint(triangle, color);
  tint(waves, color);
}

void MRUNowPlayingRoutingButton::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGSize size = sizeOf(Object(self()));
  const CGSize glyph = sizeOf(packageView);
  setFrame(packageView,
           {{(size.width - glyph.width) / 2, (size.height - glyph.height) / 2}, glyph});
}

void MRUNowPlayingRoutingButton::registerClass() {
  StandIn<MRUNowPlayingRoutingButton>("MediaControls", "MRUNowPlayingRoutingButton", "UIControl")
      .partial<"initWithFrame:", &MRUNowPlayingRoutingButton::initWithFrame>(
          "a UIControl, where a phone has a UIButton's subclass with title, image and states, and "
          "touches reach beyond the frame of the host's own")
      .property<"packageView", &MRUNowPlayingRoutingButton::packageView>()
      .method<"isActive", &MRUNowPlayingRoutingButton::isActive>()
      .partial<"setActive:", &MRUNowPlayingRoutingButton::setActive>(
          "tints shapes, where a phone sets a state of its package")
      .partial<"updatePackage", &MRUNowPlayingRoutingButton::updatePackage>(
          "a glyph of the simulator's own, from no package")
      .method<"accessibilityTraits", &routingButtonTraits>()
      .method<"isAccessibilityElement", &routingButtonIsElement>()
      .method<"layoutSubviews", &MRUNowPlayingRoutingButton::layoutSubviews>()
      .finish();
}

}  // namespace sim
