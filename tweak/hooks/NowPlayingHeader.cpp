#include "tweak/hooks/NowPlayingHeader.h"

#include "objc/Association.h"
#include "objc/Property.h"
#include "tweak/engine/Dozewell2Manager.h"
#include "tweak/hooks/DozewellButton.h"
#include "tweak/hooks/Glyph.h"
#include "tweak/panel/Dozewell2ViewController.h"

namespace NowPlayingHeader {
namespace {

using Button = MRUNowPlayingRoutingButton;
using AttachedButton = objc::Association<"dozewellButton", Button>;

Button dozewellButton(Header self) {
  return AttachedButton::get(self);
}
void setDozewellButton(Header self, Button button) {
  AttachedButton::set(self, button);
}

// The module's controller, if this header is the one in Control Center; elsewhere (on the lock
// screen, for one) there is no timer button.
UIViewController controllerInControlCenter(Header header) {
  const auto controller = header.viewControllerForAncestor();
  const bool fits = controller.isKindOfClass(objc_getClass("MRUNowPlayingViewController")) &&
                    controller.parentViewController().isKindOfClass(
                        objc_getClass("MRUControlCenterViewController"));
  return fits ? controller : UIViewController(nullptr);
}

void showMoon(Button button) {
  constexpr double size = 36;  // points
  button.packageView().removeFromSuperview();
  const UIView moon(getDndCAPackageView(size));
  button.setPackageView(moon);
  button.addSubview(moon);
}

void observeTimer(Header header) {
  const auto center = NSNotificationCenter::defaultCenter();
  const SEL handler = objc::selector<"dozewell_stateChanged:">();
  center.addObserver(header, handler, "DozewellDidStartNotification"_ns, nullptr);
  center.addObserver(header, handler, "DozewellDidStopNotification"_ns, nullptr);
}

void createButton(Header header, UIViewController controller) {
  const auto made = objc::adopt(Button(objc_alloc_init(objc_getClass("DozewellButton"))));
  const Button button = made;
  objc::send<void, "setDozewellButton:">(header, button);
  button.addTarget(controller, objc::selector<"didSelectDozewellButton:">(),
                   UIControl::touchUpInside);
  showMoon(button);
  updateForNewState(button, Dozewell2Manager::sharedInstance().isRunning() ? ButtonState::running
                                                                           : ButtonState::idle);
  header.addSubview(button);
  observeTimer(header);
  // Twice, deliberately.
  button.setActive(true);
  button.setActive(false);
}

void place(Header header) {
  setDozewellButtonPositionAndVisibilityAccordingToCurrentLayout(header.get());
}

}  // namespace

void addButtonProperty() {
  objc::addAttachedProperty<"dozewellButton", &dozewellButton, &setDozewellButton>(
      objc_getClass("MRUNowPlayingHeaderView"), "@\"DozewellButton\"");
}

void layoutSubviews(objc::Original<void(Header)> original, Header self) {
  original(self);
  if (!self.routingButton()) return;
  if (!dozewellButton(self)) {
    if (const auto controller = controllerInControlCenter(self)) createButton(self, controller);
  }
  place(self);
}

void setLayout(objc::Original<void(Header, long)> original, Header self, long layout) {
  auto& engine = Dozewell2Manager::sharedInstance();
  if (layout != routingLayout && self.layout() == routingLayout && engine.isShowingDozewellUI) {
    engine.isShowingDozewellUI = false;
    objc::send<void, "dismissCurrentView">(engine.dozewell2VC.get());
  }
  original(self, layout);
  place(self);
}

// Never switched off: the timer button's place is told from it.
void setShowRoutingButton(objc::Original<void(Header, bool)> original, Header self, bool) {
  original(self, true);
}

void stateChanged(Header self, objc::Object) {
  place(self);
}

// The host's teardown first, deliberately: what is left of the header is its identity.
void dealloc(objc::Original<void(Header)> original, Header self) {
  original(self);
  NSNotificationCenter::defaultCenter().removeObserver(self);
}

}  // namespace NowPlayingHeader
