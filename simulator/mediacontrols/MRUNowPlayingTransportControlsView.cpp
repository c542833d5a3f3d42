#include "simulator/mediacontrols/MRUNowPlayingTransportControlsView.h"

#include <algorithm>

#include "simulator/foundation/Kind.h"
#include "simulator/mediacontrols/MRUTransportButton.h"
#include "simulator/mediacontrols/ModuleVersion.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

void show(Object button, TransportSymbol symbol, const char* name) {
  if (auto* state = stateOf<MRUTransportButton>(button)) state->show(symbol, name);
}

}  // namespace

Object MRUNowPlayingTransportControlsView::initWithFrame(CGRect frame) {
  const auto made = super<Object, "initWithFrame:">(frame);
  previousButton = addView(made, "MRUTransportButton");
  playPauseButton = addView(made, "MRUTransportButton");
  nextButton = addView(made, "MRUTransportButton");
  show(previousButton, TransportSymbol::previous, "previous track");
  show(nextButton, TransportSymbol::next, "next track");
  setPlaying(false);
  if (isModuleOf16()) {
    routingButton = addView(made, "MRUTransportButton");
    show(routingButton, TransportSymbol::routes, "routes");
    addTapTarget(routingButton, made, objc::selector<"_didSelectRoutingButton:">());
  }
  return made;
}

void MRUNowPlayingTransportControlsView::didSelectRoutingButton(Object sender) {
  objc::send<void, "transportControlsView:didSelectRoutingButton:">(delegate.load().get(),
                                                                    Object(self()), sender);
}

void MRUNowPlayingTransportControlsView::setPlaying(bool isPlaying) {
  if (isPlaying)
    show(playPauseButton, TransportSymbol::pause, "pause");
  else
    show(playPauseButton, TransportSymbol::play, "play");
}

void MRUNowPlayingTransportControlsView::layoutSubviews() {
  super<void, "layoutSubviews">();
  constexpr double widest = 60;  // points
  const CGSize size = sizeOf(Object(self()));
  const double width = std::min(size.width / 3, widest);
  double x = (size.width - 3 * width) / 2;
  for (const Object button : {previousButton.get(), playPauseButton.get(), nextButton.get()}) {
    setFrame(button, {{x, 0}, {width, size.height}});
    x += width;
  }
  setFrame(routingButton, {{size.width - glyphSize, 0}, {glyphSize, size.height}});
}

void MRUNowPlayingTransportControlsView::registerClass() {
  using View = MRUNowPlayingTransportControlsView;
  StandIn<View>("MediaControls", "MRUNowPlayingTransportControlsView", "UIView")
      .method<"initWithFrame:", &View::initWithFrame>()
      .readonlyProperty<"previousButton", &View::previousButton>()
      .readonlyProperty<"playPauseButton", &View::playPauseButton>()
      .readonlyProperty<"nextButton", &View::nextButton>()
      .readonlyProperty<"routingButton", &View::routingButton>()
      .method<"setDelegate:", &View::setDelegate>()
      .method<"_didSelectRoutingButton:", &View::didSelectRoutingButton>()
      .method<"layoutSubviews", &View::layoutSubviews>()
      .finish();
}

}  // namespace sim
