#include "simulator/mediacontrols/MRUNowPlayingLabelView.h"

#include <algorithm>

#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

constexpr double anyHeight = 1000;

CGSize wanted(Object line, double width) {
  return line ? sizeThatFits(line, {width, anyHeight}) : CGSize();
}

}  // namespace

Object MRUNowPlayingLabelView::initWithFrame(CGRect frame) {
  constexpr long natural = 4;  // NSTextAlignment
  const auto made = super<Object, "initWithFrame:">(frame);
  titleLabel = addLabel(made, {.points = 15, .isBold = true, .alignment = natural});
  artistLabel = addLabel(made, {.points = 13, .alpha = 0.6, .alignment = natural});
  routeLabel = addLabel(made, {.points = 13, .alpha = 0.6, .alignment = natural});
  objc::send<void, "setHidden:">(routeLabel.get(), true);
  objc::send<void, "setUserInteractionEnabled:">(made, false);
  return made;
}

void MRUNowPlayingLabelView::setRoute(Object route) {
  setText(routeLabel, route);
  objc::send<void, "setNeedsLayout">(self());
}
void MRUNowPlayingLabelView::setTitle(Object title) {
  setText(titleLabel, title);
  objc::send<void, "setNeedsLayout">(self());
}
void MRUNowPlayingLabelView::setArtist(Object artist) {
  setText(artistLabel, artist);
  objc::send<void, "setNeedsLayout">(self());
}
Object MRUNowPlayingLabelView::route() const {
  return objc::send<Object, "text">(routeLabel.get());
}
Object MRUNowPlayingLabelView::title() const {
  return objc::send<Object, "text">(titleLabel.get());
}
Object MRUNowPlayingLabelView::artist() const {
  return objc::send<Object, "text">(artistLabel.get());
}

void MRUNowPlayingLabelView::setShowsRoute(bool shows) {
  if (showsRoute == shows) return;
  showsRoute = shows;
  objc::send<void, "setHidden:">(routeLabel.get(), !shows);
  objc::send<void, "setNeedsLayout">(self());
}

std::array<Object, 3> MRUNowPlayingLabelView::lines() const {
  return {showsRoute ? routeLabel.get() : Object(), titleLabel.get(), artistLabel.get()};
}

CGSize MRUNowPlayingLabelView::sizeThatFits(CGSize room) const {
  CGSize all;
  for (const Object line : lines()) {
    const CGSize size = wanted(line, room.width);
    all = {std::max(all.width, size.width), all.height + size.height};
  }
  return {std::min(all.width, room.width), all.height};
}

void MRUNowPlayingLabelView::layoutSubviews() {
  super<void, "layoutSubviews">();
  const double width = sizeOf(Object(self())).width;
  double y = 0;
  for (const Object line : lines()) {
    const double height = wanted(line, width).height;
    setFrame(line, {{0, y}, {width, height}});
    y += height;
  }
}

void MRUNowPlayingLabelView::registerClass() {
  using View = MRUNowPlayingLabelView;
  StandIn<View>("MediaControls", "MRUNowPlayingLabelView", "UIView")
      .partial<"initWithFrame:", &View::initWithFrame>(
          "long lines are cut off, where a phone's move; no placeholder")
      .readonlyProperty<"routeLabel", &View::routeLabel>()
      .readonlyProperty<"titleLabel", &View::titleLabel>()
      .readonlyProperty<"artistLabel", &View::artistLabel>()
      .method<"route", &View::route>()
      .method<"setRoute:", &View::setRoute>()
      .method<"title", &View::title>()
      .method<"setTitle:", &View::setTitle>()
      .method<"artist", &View::artist>()
      .method<"setArtist:", &View::setArtist>()
      .method<"sizeThatFits:", &View::sizeThatFits>()
      .method<"layoutSubviews", &View::layoutSubviews>()
      .finish();
}

}  // namespace sim
