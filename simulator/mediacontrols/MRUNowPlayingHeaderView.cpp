#include "simulator/mediacontrols/MRUNowPlayingHeaderView.h"

#include <algorithm>

#include "simulator/foundation/Kind.h"
#include "simulator/mediacontrols/Glyphs.h"
#include "simulator/mediacontrols/MRULayout.h"
#include "simulator/mediacontrols/MRUTransportButton.h"
#include "simulator/mediacontrols/ModuleVersion.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

// Points.
constexpr double button = 36, artwork = 48, gap = 10;

}  // namespace

Object MRUNowPlayingHeaderView::initWithFrame(CGRect frame) {
  const auto made = super<Object, "initWithFrame:">(frame);
  artworkView = addView(made, "UIView");
  fill(artworkView, whiteColor(0.12), 6);
  const auto note = addShape(artworkView, notePath());
  tint(note, whiteColor(0.4));
  constexpr double inset = (artwork - glyphSize) / 2;
  objc::send<void, "setFrame:">(note.get(), CGRect{{inset, inset}, {glyphSize, glyphSize}});
  labelView = addView(made, "MRUNowPlayingLabelView");
  if (isModuleOf16()) {
    routingButton = addView(made, "MRUTransportButton");
    if (auto* state = stateOf<MRUTransportButton>(routingButton.get()))
      state->show(TransportSymbol::routes, "routes");
    showRoutingButtonOrNot();
  } else {
    routingButton = addView(made, "MRUNowPlayingRoutingButton");
  }
  return made;
}

void MRUNowPlayingHeaderView::setLayout(long chosen) {
  layout = chosen;
  if (isModuleOf16()) showRoutingButtonOrNot();
  objc::send<void, "setNeedsLayout">(self());
}

void MRUNowPlayingHeaderView::setShowRoutingButton(bool show) {
  showRoutingButton = show;
  showRoutingButtonOrNot();
  objc::send<void, "setNeedsLayout">(self());
}

// From 16 on it is that of a row in the list of devices; the player's lies beside its other
// buttons.
void MRUNowPlayingHeaderView::showRoutingButtonOrNot() {
  constexpr long inTheListOfDevices = 3;
  if (isModuleOf16())
    setAlpha(routingButton, layout == inTheListOfDevices && showRoutingButton ? 1 : 0);
  else
    objc::send<void, "setHidden:">(routingButton.get(), !showRoutingButton);
}

void MRUNowPlayingHeaderView::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGSize size = sizeOf(Object(self()));
  showRoutingButtonOrNot();
  setAlpha(artworkView, layout == minimizedLayout ? 0 : 1);
  if (layout == minimizedLayout)
    placeMinimized(size);
  else
    placeInARow(size);
}

// The text has a row of its own below the buttons.
void MRUNowPlayingHeaderView::placeMinimized(CGSize size) {
  setFrame(routingButton, {{size.width - button, 0}, {button, button}});
  const double height = sizeThatFits(labelView, size).height;
  setFrame(labelView, {{0, button + 2}, {size.width, height}});
}

// The text leaves room for a second button beside that of the routes.
void MRUNowPlayingHeaderView::placeInARow(CGSize size) {
  const auto centred = [&size](double height) { return (size.height - height) / 2; };
  setFrame(artworkView, {{0, centred(artwork)}, {artwork, artwork}});
  setFrame(routingButton, {{size.width - button, centred(button)}, {button, button}});
  const double left = artwork + gap;
  const double room = std::max(size.width - button - (button + gap) - left, 0.0);
  const double height = sizeThatFits(labelView, {room, size.height}).height;
  setFrame(labelView, {{left, centred(height)}, {room, height}});
}

void MRUNowPlayingHeaderView::registerClass() {
  StandIn<MRUNowPlayingHeaderView>("MediaControls", "MRUNowPlayingHeaderView", "UIView")
      .partial<"initWithFrame:", &MRUNowPlayingHeaderView::initWithFrame>(
          "before 16 a phone has a UIControl, which opens the player's application when tapped, in "
          "a view that holds the controls")
      .readonlyProperty<"artworkView", &MRUNowPlayingHeaderView::artworkView>()
      .readonlyProperty<"labelView", &MRUNowPlayingHeaderView::labelView>()
      .property<"routingButton", &MRUNowPlayingHeaderView::routingButton>()
      .readonlyProperty<"layout", &MRUNowPlayingHeaderView::layout>()
      .partial<"setLayout:", &MRUNowPlayingHeaderView::setLayout>(
          "layouts 0 to 3 only, of which 3 is the lock screen's, 4 on later phones; another looks "
          "like "
          "the full player; the same layout again is laid out again")
      .readonlyProperty<"showRoutingButton", &MRUNowPlayingHeaderView::showRoutingButton>()
      .partial<"setShowRoutingButton:", &MRUNowPlayingHeaderView::setShowRoutingButton>(
          "hides the button, where a phone makes it transparent")
      .partial<"layoutSubviews", &MRUNowPlayingHeaderView::layoutSubviews>(
          "measures of the simulator's own, the same in languages from the right")
      .finish();
}

}  // namespace sim
