#include "simulator/springboard/MRUNowPlayingHeaderView.h"

#include "simulator/StandIn.h"

namespace sim {
namespace {

objc::Strong<objc::Object> addSubview(objc::Object header, const char* className) {
  auto view = objc::adopt(objc::send<objc::Object, "new">(objc_getClass(className)));
  objc::send<void, "addSubview:">(header, view.get());
  return view;
}

}  // namespace

objc::Object MRUNowPlayingHeaderView::initWithFrame(CGRect frame) {
  const auto made = super<objc::Object, "initWithFrame:">(frame);
  labelView = addSubview(made, "UIView");
  routingButton = addSubview(made, "MRUNowPlayingRoutingButton");
  return made;
}

void MRUNowPlayingHeaderView::registerClass() {
  StandIn<MRUNowPlayingHeaderView>("MediaControls", "MRUNowPlayingHeaderView", "UIView")
      .method<"initWithFrame:", &MRUNowPlayingHeaderView::initWithFrame>()
      .readonlyProperty<"routingButton", &MRUNowPlayingHeaderView::routingButton>()
      .readonlyProperty<"labelView", &MRUNowPlayingHeaderView::labelView>()
      .property<"layout", &MRUNowPlayingHeaderView::layout>()
      .property<"showRoutingButton", &MRUNowPlayingHeaderView::showRoutingButton>()
      .finish();
}

}  // namespace sim
