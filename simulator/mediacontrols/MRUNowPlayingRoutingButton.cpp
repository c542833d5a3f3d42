#include "simulator/mediacontrols/MRUNowPlayingRoutingButton.h"

#include "simulator/StandIn.h"
#include "simulator/uikit/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

constexpr double glyphSize = 36;  // points

}  // namespace

Object MRUNowPlayingRoutingButton::initWithFrame(CGRect frame) {
  const auto made = super<Object, "initWithFrame:">(frame);
  objc::send<void, "updatePackage">(made);
  return made;
}

void MRUNowPlayingRoutingButton::setActive(bool isActive) {
  active = isActive;
}

void MRUNowPlayingRoutingButton::updatePackage() {
  objc::send<void, "removeFromSuperview">(packageView.get());
  packageView = addView(Object(self()), "UIView");
  objc::send<void, "setUserInteractionEnabled:">(packageView.get(), false);
  setFrame(packageView, {{0, 0}, {glyphSize, glyphSize}});
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
      .method<"initWithFrame:", &MRUNowPlayingRoutingButton::initWithFrame>()
      .property<"packageView", &MRUNowPlayingRoutingButton::packageView>()
      .readonlyProperty<"active", &MRUNowPlayingRoutingButton::active>()
      .method<"setActive:", &MRUNowPlayingRoutingButton::setActive>()
      .partial<"updatePackage", &MRUNowPlayingRoutingButton::updatePackage>(
          "a glyph of the simulator's own, from no package")
      .method<"layoutSubviews", &MRUNowPlayingRoutingButton::layoutSubviews>()
      .finish();
}

}  // namespace sim
