#include "simulator/mediacontrols/MRUControlCenterViewController.h"

#include "simulator/mediacontrols/MRULayout.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {

using objc::Object;
using Controller = MRUControlCenterViewController;

void Controller::viewDidLoad() {
  super<void, "viewDidLoad">();
  nowPlayingViewController =
      objc::adopt(objc::send<Object, "new">(objc_getClass("MRUNowPlayingViewController")));
  const Object player = nowPlayingViewController;
  objc::send<void, "setDelegate:">(player, Object(self()));
  addChildController(Object(self()), player);
}

void Controller::viewWillLayoutSubviews() {
  super<void, "viewWillLayoutSubviews">();
  setFrame(objc::send<Object, "view">(nowPlayingViewController.get()),
           {{0, 0}, sizeOf(objc::send<Object, "view">(self()))});
}

void Controller::willTransitionToExpandedContentMode(bool expanded) {
  const Object player = nowPlayingViewController;
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

void Controller::registerClass() {
  StandIn<Controller>("MediaControls", "MRUControlCenterViewController", "UIViewController")
      .readonlyProperty<"nowPlayingViewController", &Controller::nowPlayingViewController>()
      .method<"viewDidLoad", &Controller::viewDidLoad>()
      .method<"viewWillLayoutSubviews", &Controller::viewWillLayoutSubviews>()
      .method<"willTransitionToExpandedContentMode:",
              &Controller::willTransitionToExpandedContentMode>()
      .method<"nowPlayingViewControllerDidChangeLayout:",
              &Controller::nowPlayingViewControllerDidChangeLayout>()
      .finish();
}

}  // namespace sim
