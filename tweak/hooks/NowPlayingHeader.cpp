#include "tweak/hooks/NowPlayingHeader.h"

#include "objc/Association.h"
#include "objc/Property.h"
#include "tweak/engine/Dozewell2Manager.h"
#include "tweak/hooks/Glyph.h"
#include "tweak/hooks/module/MediaModule.h"
#include "tweak/panel/Dozewell2ViewController.h"

void setDozewellButtonPositionAndVisibilityAccordingToCurrentLayout(id header) {
  MediaModule::placeButton(DozewellNowPlayingHeader(header));
}

namespace NowPlayingHeader {
namespace {

using Button = DozewellButton;
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
  const bool fits = isKindOf<MRUNowPlayingViewController>(controller) &&
                    isKindOf<MRUControlCenterViewController>(controller.parentViewController());
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
  const auto made = Button::make();
  const Button button = made;
  header.setDozewellButton(button);
  button.addTarget(controller, objc::selector<"didSelectDozewellButton:">(),
                   UIControl::touchUpInside);
  showMoon(button);
  button.updateForNewState(Dozewell2Manager::sharedInstance().isRunning() ? Button::State::running
                                                                          : Button::State::idle);
  header.addSubview(button);
  observeTimer(header);
  // One after the other, as the extension always has: it leaves the button inactive even while a
  // timer runs. Without the two no user would see a difference, for the placing that follows gives
  // the state again; another extension's hook on setActive: would (button-made-while-a-timer-runs).
  button.setActive(true);
  button.setActive(false);
}

}  // namespace

void addButtonProperty() {
  objc::addAttachedProperty<"dozewellButton", &dozewellButton, &setDozewellButton>(
      MRUNowPlayingHeaderView::cls(), "@\"DozewellButton\"");
}

void layoutSubviews(objc::Original<void(Header)> original, Header self) {
  original(self);
  if (!self.routingButton()) return;
  if (!dozewellButton(self)) {
    if (const auto controller = controllerInControlCenter(self)) createButton(self, controller);
  }
  MediaModule::placeButton(self);
}

void setLayout(objc::Original<void(Header, long)> original, Header self, long layout) {
  const auto engine = Dozewell2Manager::sharedInstance();
  if (layout != routingLayout && self.layout() == routingLayout && engine.isShowingDozewellUI()) {
    engine.setIsShowingDozewellUI(false);
    Dozewell2ViewController::preloaded().dismissCurrentView();
  }
  original(self, layout);
  MediaModule::placeButton(self);
}

// Never switched off: the timer button's place is told from it.
void setShowRoutingButton(objc::Original<void(Header, bool)> original, Header self, bool) {
  original(self, true);
}

// Outside of a layout pass the two buttons, one above the other, climb in the full player: the
// host, asked for one, puts them back.
void stateChanged(Header self, objc::Object) {
  MediaModule::placeButton(self);
  self.setNeedsLayout();
}

// The host's teardown first, as the extension always has done it: what is left of the header is its
// identity, and the notification centre compares no more than that. The other way round, a start or
// stop that the host's teardown brings about would no longer reach it
// (button-goes-with-its-header).
void dealloc(objc::Original<void(Header)> original, Header self) {
  original(self);
  NSNotificationCenter::defaultCenter().removeObserver(self);
}

}  // namespace NowPlayingHeader
