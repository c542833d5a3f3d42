#include "simulator/mediacontrols/MRUNowPlayingContainerView.h"

#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {

using objc::Object;
using Container = MRUNowPlayingContainerView;

Object Container::initWithFrame(CGRect frame) {
  const auto made = super<Object, "initWithFrame:">(frame);
  objc::send<void, "setClipsToBounds:">(made, true);
  return made;
}

void Container::setContentView(Object view) {
  if (contentView.get() == view) return;
  objc::send<void, "removeFromSuperview">(contentView.get());
  contentView = objc::retain(view);
  if (view) objc::send<void, "addSubview:">(self(), view);
  objc::send<void, "setNeedsLayout">(self());
  objc::send<void, "layoutIfNeeded">(self());
}

CGSize Container::sizeThatFits(CGSize room) const {
  return {room.width, sim::sizeThatFits(contentView, room).height};
}

void Container::layoutSubviews() {
  super<void, "layoutSubviews">();
  setFrame(contentView, {{0, 0}, sizeOf(Object(self()))});
}

void Container::registerClass() {
  StandIn<Container>("MediaControls", "MRUNowPlayingContainerView", "UIView")
      .method<"initWithFrame:", &Container::initWithFrame>()
      .readonlyProperty<"contentView", &Container::contentView>()
      .method<"setContentView:", &Container::setContentView>()
      .method<"sizeThatFits:", &Container::sizeThatFits>()
      .partial<"layoutSubviews", &Container::layoutSubviews>("no separator at the top")
      .finish();
}

}  // namespace sim
