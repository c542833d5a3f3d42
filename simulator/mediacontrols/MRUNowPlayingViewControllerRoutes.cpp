// Where the sound goes: how the player lets that be chosen.
#include "objc/Message.h"
#include "simulator/machine/Phone.h"
#include "simulator/mediacontrols/MRUNowPlayingViewController.h"
#include "simulator/radios/Radios.h"

namespace sim {

using objc::Object;
using Controller = MRUNowPlayingViewController;

objc::Strong<Object> Controller::makeRoutes() {
  return objc::adopt(objc::send<Object, "new">(objc_getClass("MRURoutingViewController")));
}

void Controller::presentRoutesOnASheet() {
  routeControlsPresentation = onASheet;
  routingViewController = {};
}

void Controller::didSelectRoutingButton(Object sender) {
  presentRoutingControls(sender);
}

void Controller::presentRoutingControls(Object source) {
  if (routeControlsPresentation != inThePlayer) return presentExternalRoutingControls(source);
  apply(layout == routingLayout ? expandedLayout : routingLayout);
}

void Controller::apply(long wanted) {
  if (const Object asked = itsDelegate())
    objc::send<void, "nowPlayingViewController:applyLayout:">(asked, Object(self()), wanted);
  else
    objc::send<void, "setLayout:">(self(), wanted);
}

void Controller::presentExternalRoutingControls(Object source) {
  if (!mediaControls)
    mediaControls = objc::adopt(objc::send<Object, "new">(objc_getClass("MPMediaControls")));
  objc::send<void, "setSourceView:">(mediaControls.get(), source);
  objc::send<void, "present">(mediaControls.get());
}

void Controller::updateLayout() {
  const bool isAlone = !Radios::current().peers().empty();
  if (layout == routingLayout && isAlone) apply(expandedLayout);
}

void Controller::didSelectRoutingButtonOf(Object, Object button) {
  objc::send<void, "presentRoutingControlsFromSourceView:">(self(), button);
}

void Controller::makeRoutesLater() {
  Phone::current().queue.addNow([player = objc::retain(Object(self()))] {
    objc::send<void, "setRoutingViewController:">(player.get(), makeRoutes().get());
  });
}

void Controller::setRoutingViewController(Object controller) {
  if (routingViewController) {
    objc::send<void, "willMoveToParentViewController:">(routingViewController.get(), nullptr);
    objc::send<void, "removeFromParentViewController">(routingViewController.get());
  }
  routingViewController = objc::retain(controller);
  if (!controller) return;
  const Object me(self());
  objc::send<void, "addChildViewController:">(me, controller);
  objc::send<void, "setContentView:">(moduleView(), objc::send<Object, "view">(controller));
  objc::send<void, "didMoveToParentViewController:">(controller, me);
}

}  // namespace sim
