#include "simulator/mediacontrols/MRUControlCenterViewController.h"

#include <utility>

#include "simulator/mediacontrols/MRULayout.h"
#include "simulator/mediacontrols/ModuleVersion.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {

using objc::Object;
using Controller = MRUControlCenterViewController;

void Controller::loadView() {
  if (!isModuleOf16()) return super<void, "loadView">();
  const auto made = objc::adopt(objc::send<Object, "new">(objc_getClass("MRUControlCenterView")));
  objc::send<void, "setView:">(self(), made.get());
}

void Controller::viewDidLoad() {
  super<void, "viewDidLoad">();
  nowPlayingViewController =
      objc::adopt(objc::send<Object, "new">(objc_getClass("MRUNowPlayingViewController")));
  const Object player = nowPlayingViewController;
  objc::send<void, "setDelegate:">(player, Object(self()));
  addChildController(Object(self()), player);
  if (!isModuleOf16()) return;
  const Object view = objc::send<Object, "view">(self());
  const Object corner = objc::send<Object, "routingButton">(view);
  objc::send<void, "bringSubviewToFront:">(view, corner);
  addTapTarget(corner, Object(self()), objc::selector<"didSelectRoutingButton:">());
}

void Controller::viewWillLayoutSubviews() {
  super<void, "viewWillLayoutSubviews">();
  setFrame(objc::send<Object, "view">(nowPlayingViewController.get()),
           {{0, 0}, sizeOf(objc::send<Object, "view">(self()))});
}

void Controller::willTransitionToExpandedContentMode(bool expanded) {
  const Object player = nowPlayingViewController;
  if (isModuleOf16()) {
    const long pending = std::exchange(pendingNowPlayingExpandedLayout, 0);
    objc::send<void, "setShowRoutingButton:">(objc::send<Object, "view">(self()), !expanded);
    objc::send<void, "setLayout:">(player, !expanded      ? long(minimizedLayout)
                                           : pending != 0 ? pending
                                                          : long(expandedLayout));
    return;
  }
  const long layout = objc::send<long, "layout">(player);
  const bool fits = expanded ? layout != minimizedLayout : layout == minimizedLayout;
  if (!fits)
    objc::send<void, "setLayout:">(player, long(expanded ? expandedLayout : minimizedLayout));
}

void Controller::nowPlayingViewControllerDidChangeLayout(Object player) {
  const bool needsRoom = objc::send<long, "layout">(player) != minimizedLayout;
  const Object container = objc::send<Object, "parentViewController">(self());
  if (objc::send<bool, "isExpanded">(container) != needsRoom)
    objc::send<void, "setExpanded:">(container, needsRoom);
}

void Controller::applyLayout(Object player, long layout) {
  const Object container = objc::send<Object, "parentViewController">(self());
  if (objc::send<bool, "isExpanded">(container))
    return objc::send<void, "setLayout:">(player, layout);
  if (layout == minimizedLayout) return;
  pendingNowPlayingExpandedLayout = layout;
  objc::send<void, "setExpanded:">(container, true);
}

void Controller::didSelectRoutingButton(Object) {
  applyLayout(nowPlayingViewController, routingLayout);
}

void Controller::registerClass() {
  StandIn<Controller>("MediaControls", "MRUControlCenterViewController", "UIViewController")
      .readonlyProperty<"nowPlayingViewController", &Controller::nowPlayingViewController>()
      .partial<"loadView", &Controller::loadView>(
          "a UIView before 16, where a phone has an MRUControlCenterView in every version")
      .partial<"viewDidLoad", &Controller::viewDidLoad>(
          "one player, where a phone before 16 has one for each device")
      .method<"viewWillLayoutSubviews", &Controller::viewWillLayoutSubviews>()
      .partial<"willTransitionToExpandedContentMode:",
               &Controller::willTransitionToExpandedContentMode>(
          "a phone is told by didTransitionToExpandedContentMode: only")
      .partial<"nowPlayingViewControllerDidChangeLayout:",
               &Controller::nowPlayingViewControllerDidChangeLayout>("the simulator's own")
      .method<"nowPlayingViewController:applyLayout:", &Controller::applyLayout>()
      .method<"didSelectRoutingButton:", &Controller::didSelectRoutingButton>()
      .finish();
}

}  // namespace sim
