#include "simulator/mediacontrols/MRUNowPlayingLabelView.h"

#include <algorithm>

#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {
namespace {

using objc::Object;

constexpr double anyHeight = 1000;

double heightOf(Object label, double width) {
  return sizeThatFits(label, {width, anyHeight}).height;
}

}  // namespace

Object MRUNowPlayingLabelView::initWithFrame(CGRect frame) {
  const auto made = super<Object, "initWithFrame:">(frame);
  titleLabel = addLabel(made, {.points = 15, .isBold = true, .lines = 2});
  artistLabel = addLabel(made, {.points = 13, .alpha = 0.6});
  objc::send<void, "setUserInteractionEnabled:">(made, false);
  return made;
}

void MRUNowPlayingLabelView::setTitle(Object title) {
  setText(titleLabel, title);
  objc::send<void, "setNeedsLayout">(self());
}
void MRUNowPlayingLabelView::setArtist(Object artist) {
  setText(artistLabel, artist);
  objc::send<void, "setNeedsLayout">(self());
}
Object MRUNowPlayingLabelView::title() const {
  return objc::send<Object, "text">(titleLabel.get());
}
Object MRUNowPlayingLabelView::artist() const {
  return objc::send<Object, "text">(artistLabel.get());
}

CGSize MRUNowPlayingLabelView::sizeThatFits(CGSize room) const {
  const double widest = std::max(sim::sizeThatFits(titleLabel, {room.width, anyHeight}).width,
                                 sim::sizeThatFits(artistLabel, {room.width, anyHeight}).width);
  return {std::min(widest, room.width),
          heightOf(titleLabel, room.width) + heightOf(artistLabel, room.width)};
}

void MRUNowPlayingLabelView::layoutSubviews() {
  super<void, "layoutSubviews">();
  const double width = sizeOf(Object(self())).width;
  const double title = heightOf(titleLabel, width);
  setFrame(titleLabel, {{0, 0}, {width, title}});
  setFrame(artistLabel, {{0, title}, {width, heightOf(artistLabel, width)}});
}

void MRUNowPlayingLabelView::registerClass() {
  StandIn<MRUNowPlayingLabelView>("MediaControls", "MRUNowPlayingLabelView", "UIView")
      .method<"initWithFrame:", &MRUNowPlayingLabelView::initWithFrame>()
      .readonlyProperty<"titleLabel", &MRUNowPlayingLabelView::titleLabel>()
      .readonlyProperty<"artistLabel", &MRUNowPlayingLabelView::artistLabel>()
      .method<"title", &MRUNowPlayingLabelView::title>()
      .method<"setTitle:", &MRUNowPlayingLabelView::setTitle>()
      .method<"artist", &MRUNowPlayingLabelView::artist>()
      .method<"setArtist:", &MRUNowPlayingLabelView::setArtist>()
      .partial<"sizeThatFits:", &MRUNowPlayingLabelView::sizeThatFits>(
          "long titles break into two lines instead of moving, and no line names the route")
      .method<"layoutSubviews", &MRUNowPlayingLabelView::layoutSubviews>()
      .finish();
}

}  // namespace sim
