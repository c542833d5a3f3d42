#include "simulator/mediacontrols/MRUControlCenterViewController.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "simulator/foundation/Values.h"
#include "simulator/mediacontrols/MRULayout.h"
#include "simulator/mediacontrols/ModuleVersion.h"
#include "simulator/mediaremote/Endpoints.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {

using objc::Object;
using Controller = MRUControlCenterViewController;

Controller::~MRUControlCenterViewController() {
  if (endpointObserver != 0) Endpoints::current().forget(endpointObserver);
}

void Controller::loadView() {
  if (!isModuleOf16()) return super<void, "loadView">();
  const auto made = objc::adopt(objc::send<Object, "new">(objc_getClass("MRUControlCenterView")));
  objc::send<void, "setView:">(self(), made.get());
}

objc::Strong<Object> Controller::makePlayer() {
  auto player =
      objc::adopt(objc::send<Object, "new">(objc_getClass("MRUNowPlayingViewController")));
  objc::send<void, "setDelegate:">(player.get(), Object(self()));
  return player;
}

void Controller::viewDidLoad() {
  super<void, "viewDidLoad">();
  nowPlayingViewController = makePlayer();
  addChildController(Object(self()), nowPlayingViewController);
  if (!isModuleOf16()) {
    endpointObserver = Endpoints::current().observe([this] { updateOthers(); });
    return updateOthers();
  }
  const Object view = objc::send<Object, "view">(self());
  const Object corner = objc::send<Object, "routingButton">(view);
  objc::send<void, "bringSubviewToFront:">(view, corner);
  addTapTarget(corner, Object(self()), objc::selector<"didSelectRoutingButton:">());
}

// A player is loaded as soon as its device is found, and goes with it.
void Controller::updateOthers() {
  const auto& names = Endpoints::current().names();
  std::erase_if(others, [&names](const auto& other) {
    const bool isGone = std::ranges::find(names, other.first) == names.end();
    if (isGone) removeChildController(other.second);
    return isGone;
  });
  for (const std::string& name : names) {
    if (others.contains(name)) continue;
    const Object player = (others[name] = makePlayer()).get();
    objc::send<void, "addChildViewController:">(self(), player);
    objc::send<Object, "view">(player);
    objc::send<void, "didMoveToParentViewController:">(player, Object(self()));
  }
}

Object Controller::viewControllers() const {
  std::vector<std::pair<Object, Object>> all;
  if (nowPlayingViewController) all.emplace_back(string("iPhone"), nowPlayingViewController.get());
  for (const auto& [name, player] : others)
    if (player) all.emplace_back(string(name), player.get());
  return dictionary(all);
}

void Controller::viewWillLayoutSubviews() {
  super<void, "viewWillLayoutSubviews">();
  setFrame(objc::send<Object, "view">(nowPlayingViewController.get()),
           {{0, 0}, sizeOf(objc::send<Object, "view">(self()))});
}

bool Controller::isExpanded() const {
  return objc::send<bool, "isExpanded">(objc::send<Object, "parentViewController">(self()));
}

void Controller::viewWillTransition(CGSize, Object) {
  objc::send<void, "updateSelectedViewControllerLayout">(self());
}

void Controller::updateSelectedViewControllerLayout() {
  const bool expanded = isExpanded();
  const long pending = std::exchange(pendingNowPlayingExpandedLayout, 0);
  if (isModuleOf16())
    objc::send<void, "setShowRoutingButton:">(objc::send<Object, "view">(self()), !expanded);
  const long full = pending != 0 ? pending : long(expandedLayout);
  objc::send<void, "setLayout:">(nowPlayingViewController.get(),
                                 expanded ? full : long(minimizedLayout));
}

void Controller::applyLayout(Object player, long layout) {
  constexpr double seconds = 0.3;
  if (isExpanded())
    return changeAnimated(seconds, [player, layout] {
      objc::send<void, "setLayout:">(player, layout);
      objc::send<void, "layoutIfNeeded">(objc::send<Object, "view">(player));
    });
  if (layout == minimizedLayout) return;
  pendingNowPlayingExpandedLayout = layout;
  objc::send<void, "expandModule">(objc::send<Object, "parentViewController">(self()));
}

void Controller::didSelectRoutingButton(Object) {
  applyLayout(nowPlayingViewController, routingLayout);
}

void Controller::registerClass() {
  StandIn<Controller>("MediaControls", "MRUControlCenterViewController", "UIViewController")
      .readonlyProperty<"nowPlayingViewController", &Controller::nowPlayingViewController>()
      .partial<"viewControllers", &Controller::viewControllers>(
          "the user cannot choose another device, and there is no list of devices")
      .readonlyProperty<"pendingNowPlayingExpandedLayout",
                        &Controller::pendingNowPlayingExpandedLayout>()
      .partial<"loadView", &Controller::loadView>(
          "a UIView before 16, where a phone has an MRUControlCenterView in every version")
      .method<"viewDidLoad", &Controller::viewDidLoad>()
      .method<"viewWillLayoutSubviews", &Controller::viewWillLayoutSubviews>()
      .method<"viewWillTransitionToSize:withTransitionCoordinator:",
              &Controller::viewWillTransition>()
      .method<"didTransitionToExpandedContentMode:",
              &Controller::didTransitionToExpandedContentMode>()
      .method<"updateSelectedViewControllerLayout",
              &Controller::updateSelectedViewControllerLayout>()
      .partial<"nowPlayingViewController:applyLayout:", &Controller::applyLayout>(
          "asks its container to expand by itself, where a phone calls a block of the module's")
      .method<"didSelectRoutingButton:", &Controller::didSelectRoutingButton>()
      .finish();
}

}  // namespace sim
