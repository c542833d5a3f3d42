#include "simulator/mediacontrols/MRUNowPlayingHeaderView.h"

#include <algorithm>

#include "simulator/foundation/Kind.h"
#include "simulator/mediacontrols/MRULayout.h"
#include "simulator/mediacontrols/MRUNowPlayingLabelView.h"
#include "simulator/mediacontrols/MRUTransportButton.h"
#include "simulator/mediacontrols/ModuleVersion.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/LayoutDirection.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

// Points.
constexpr double buttonSide = 36, artwork = 48, gap = 10;

Object makeRoutingButton(Object header) {
  constexpr long custom = 0;
  if (isModuleOf16()) return nullptr;
  const Object made = objc::send<Object, "easyTouchButtonWithType:">(
      objc_getClass("MRUNowPlayingRoutingButton"), custom);
  objc::send<void, "addSubview:">(header, made);
  return made;
}

// The simulated Control Center has no recogniser that sees a touch before the control under it.
template <objc::FixedString Selector>
void passOn(Object self, Object touches, Object event) {
  objc::send<void, Selector>(objc::send<Object, "nextResponder">(self), touches, event);
}

}  // namespace

Object MRUNowPlayingHeaderView::initWithFrame(CGRect frame) {
  const auto made = super<Object, "initWithFrame:">(frame);
  artworkView = addView(made, "MRUArtworkView");
  labelView = addView(made, "MRUNowPlayingLabelView");
  routingButton = objc::retain(makeRoutingButton(made));
  if (isModuleOf16()) {
    routingButton = addView(made, "MRUTransportButton");
    if (auto* state = stateOf<MRUTransportButton>(routingButton.get()))
      state->show(TransportSymbol::routes, "routes");
  }
  updateVisibility();
  return made;
}

void MRUNowPlayingHeaderView::setLayout(long chosen) {
  if (layout == chosen) return;
  layout = chosen;
  objc::send<void, "updateVisibility">(self());
  objc::send<void, "setNeedsLayout">(self());
}

void MRUNowPlayingHeaderView::setShowRoutingButton(bool show) {
  if (showRoutingButton == show) return;
  showRoutingButton = show;
  objc::send<void, "updateVisibility">(self());
  objc::send<void, "setNeedsLayout">(self());
}

// From 16 on the routing button is that of a row in the list of devices; the player's lies beside
// its other buttons.
void MRUNowPlayingHeaderView::updateVisibility() {
  constexpr long inTheListOfDevices = 3;
  const bool hasRoutingButton = !isModuleOf16() || layout == inTheListOfDevices;
  setAlpha(routingButton, hasRoutingButton && showRoutingButton ? 1 : 0);
  setAlpha(artworkView, layout == minimizedLayout ? 0 : 1);
  if (auto* labels = stateOf<MRUNowPlayingLabelView>(labelView.get()))
    labels->setShowsRoute(layout == expandedLayout);
}

void MRUNowPlayingHeaderView::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGSize size = sizeOf(Object(self()));
  if (layout == minimizedLayout)
    placeMinimized(size);
  else
    placeInARow(size);
}

void MRUNowPlayingHeaderView::place(Object part, CGRect frame) {
  if (viewIsRightToLeft(Object(self())))
    frame.origin.x = sizeOf(Object(self())).width - frame.origin.x - frame.size.width;
  setFrame(part, frame);
}

// The text has a row of its own below the buttons.
void MRUNowPlayingHeaderView::placeMinimized(CGSize size) {
  place(routingButton, {{size.width - buttonSide, 0}, {buttonSide, buttonSide}});
  const double height = sizeThatFits(labelView, size).height;
  place(labelView, {{0, buttonSide + 2}, {size.width, height}});
}

// The text leaves room for a second button beside that of the routes.
void MRUNowPlayingHeaderView::placeInARow(CGSize size) {
  const auto centred = [&size](double height) { return (size.height - height) / 2; };
  place(artworkView, {{0, centred(artwork)}, {artwork, artwork}});
  place(routingButton, {{size.width - buttonSide, centred(buttonSide)}, {buttonSide, buttonSide}});
  const double left = artwork + gap;
  const double room = std::max(size.width - buttonSide - (buttonSide + gap) - left, 0.0);
  const double height = sizeThatFits(labelView, {room, size.height}).height;
  place(labelView, {{left, centred(height)}, {room, height}});
}

void MRUNowPlayingHeaderView::registerClass() {
  using View = MRUNowPlayingHeaderView;
  StandIn<View>("MediaControls", "MRUNowPlayingHeaderView", isModuleOf16() ? "UIView" : "UIControl")
      .partial<"initWithFrame:", &View::initWithFrame>(
          "lies in the player's view itself, where before 16 a phone has an "
          "MRUNowPlayingControlsView between; no transportButton, "
          "textInsetForSize: or prepareForReuse")
      .readonlyProperty<"artworkView", &View::artworkView>()
      .readonlyProperty<"labelView", &View::labelView>()
      .property<"routingButton", &View::routingButton>()
      .property<"context", &View::context>()
      .readonlyProperty<"layout", &View::layout>()
      .partial<"setLayout:", &View::setLayout>(
          "layouts 0 to 3 only, of which 3 is the lock screen's, 4 on later phones; another "
          "looks like the full player")
      .readonlyProperty<"showRoutingButton", &View::showRoutingButton>()
      .method<"setShowRoutingButton:", &View::setShowRoutingButton>()
      .method<"updateVisibility", &View::updateVisibility>()
      .partial<"layoutSubviews", &View::layoutSubviews>("measures of the simulator's own")
      .partial<"touchesBegan:withEvent:", &passOn<"touchesBegan:withEvent:">>(
          "passes touches on to the module; on a phone a tap opens the player's application")
      .method<"touchesMoved:withEvent:", &passOn<"touchesMoved:withEvent:">>()
      .method<"touchesEnded:withEvent:", &passOn<"touchesEnded:withEvent:">>()
      .method<"touchesCancelled:withEvent:", &passOn<"touchesCancelled:withEvent:">>()
      .finish();
}

}  // namespace sim
