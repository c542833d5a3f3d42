#include "simulator/coversheet/CSMediaControlsViewController.h"

#include "simulator/foundation/Kind.h"
#include "simulator/mediacontrols/MRULayout.h"
#include "simulator/mediacontrols/MRUNowPlayingViewController.h"
#include "simulator/standin/StandIn.h"
#include "simulator/uikit/views/ViewBuilding.h"

namespace sim {

using objc::Object;
using Controller = CSMediaControlsViewController;

void Controller::viewDidLoad() {
  constexpr double cornerRadius = 24;  // points
  super<void, "viewDidLoad">();
  const Object view = objc::send<Object, "view">(self());
  fill(view, rgbColor(0.11, 0.11, 0.12, 0.72), cornerRadius);
  objc::send<void, "setClipsToBounds:">(view, true);
  nowPlayingViewController =
      objc::adopt(objc::send<Object, "new">(objc_getClass("MRUNowPlayingViewController")));
  const Object player = nowPlayingViewController;
  if (auto* state = stateOf<MRUNowPlayingViewController>(player)) state->presentRoutesOnASheet();
  objc::send<void, "setLayout:">(player, long(lockScreenLayout));
  addChildController(Object(self()), player);
}

void Controller::viewWillLayoutSubviews() {
  super<void, "viewWillLayoutSubviews">();
  setFrame(objc::send<Object, "view">(nowPlayingViewController.get()),
           {{0, 0}, sizeOf(objc::send<Object, "view">(self()))});
}

void Controller::registerClass() {
  StandIn<Controller>("CoverSheet", "CSMediaControlsViewController", "UIViewController")
      .readonlyProperty<"nowPlayingViewController", &Controller::nowPlayingViewController>()
      .partial<"viewDidLoad", &Controller::viewDidLoad>(
          "the player itself, where a phone has an MRUCoverSheetViewController between")
      .method<"viewWillLayoutSubviews", &Controller::viewWillLayoutSubviews>()
      .finish();
}

}  // namespace sim
