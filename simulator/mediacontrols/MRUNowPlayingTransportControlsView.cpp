#include "simulator/mediacontrols/MRUNowPlayingTransportControlsView.h"

#include <algorithm>

#include "simulator/StandIn.h"
#include "simulator/foundation/Values.h"
#include "simulator/uikit/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

constexpr unsigned long normalState = 0;

objc::Strong<Object> addButton(Object parent, const char* symbol, const char* name) {
  auto button = addView(parent, "UIButton");
  objc::send<void, "setTitle:forState:">(button.get(), string(symbol), normalState);
  objc::send<void, "setAccessibilityLabel:">(button.get(), string(name));
  return button;
}

}  // namespace

Object MRUNowPlayingTransportControlsView::initWithFrame(CGRect frame) {
  const auto made = super<Object, "initWithFrame:">(frame);
  previousButton = addButton(made, "⏮", "previous track");
  playPauseButton = addButton(made, "▶", "play");
  nextButton = addButton(made, "⏭", "next track");
  return made;
}

void MRUNowPlayingTransportControlsView::setPlaying(bool isPlaying) {
  objc::send<void, "setTitle:forState:">(playPauseButton.get(), string(isPlaying ? "⏸" : "▶"),
                                         normalState);
  objc::send<void, "setAccessibilityLabel:">(playPauseButton.get(),
                                             string(isPlaying ? "pause" : "play"));
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
}

void MRUNowPlayingTransportControlsView::registerClass() {
  using View = MRUNowPlayingTransportControlsView;
  StandIn<View>("MediaControls", "MRUNowPlayingTransportControlsView", "UIView")
      .method<"initWithFrame:", &View::initWithFrame>()
      .readonlyProperty<"previousButton", &View::previousButton>()
      .readonlyProperty<"playPauseButton", &View::playPauseButton>()
      .readonlyProperty<"nextButton", &View::nextButton>()
      .method<"layoutSubviews", &View::layoutSubviews>()
      .finish();
}

}  // namespace sim
