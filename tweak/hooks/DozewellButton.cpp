#include "tweak/hooks/DozewellButton.h"

#include "objc/Association.h"
#include "objc/Hook.h"
#include "objc/Property.h"
#include "tweak/hooks/Glyph.h"

namespace {

using Button = MRUNowPlayingRoutingButton;
using CurrentState = objc::Association<"currentState", NSNumber>;

long currentState(Button self) {
  return CurrentState::get(self).integerValue();
}

void setCurrentState(Button self, long state) {
  CurrentState::set(self, NSNumber::numberWithInteger(state));
}

// The host would put its routing glyph back into the button.
void keepPackage(objc::Original<void(Button)>, Button) {}

// Whatever the package holds, its shapes are the glyph.
void setMoonColor(Button self, objc::Object color) {
  const NSMutableArray layers(allSublayersFromLayer(self.packageView().layer().get()));
  const auto fill = objc::as<UIColor>(color).CGColor();
  for (unsigned long i = 0; i < layers.count(); ++i) {
    const auto layer = layers.objectAtIndex(i);
    if (objc::as<NSObject>(layer).isKindOfClass(objc_getClass("CAShapeLayer")))
      objc::as<CAShapeLayer>(layer).setFillColor(fill);
  }
}

void setCircleBackgroundVisible(Button self, bool visible) {
  self.setBackgroundColor(visible ? UIColor::white() : UIColor::clear());
  self.layer().setCornerRadius(self.frame().size.width / 2);
}

void show(Button self, bool active, UIColor moon, bool circle) {
  self.setActive(active);
  objc::send<void, "setMoonColor:">(self, moon);
  objc::send<void, "setCircleBackgroundVisible:">(self, circle);
}

void showState(Button self, int state) {
  const auto runningColor = UIColor::rgb(0.415, 0.365, 0.861, 1);
  switch (ButtonState(state)) {
    case ButtonState::idle:
      return show(self, false, UIColor::white(), false);
    case ButtonState::idleInRoutingPlace:
      return show(self, false, UIColor::black(), true);
    case ButtonState::running:
      return show(self, true, runningColor, false);
    case ButtonState::runningInRoutingPlace:
      return show(self, true, runningColor, true);
  }
}

void updateState(Button self, int state) {
  constexpr double seconds = 0.1;
  objc::send<void, "setCurrentState:">(self, long(state));
  UIKit::animate(seconds, [self = objc::retain(self), state] { showState(self, state); });
}

}  // namespace

void addDozewellButtonClass() {
  Class superclass = objc_getClass("MRUNowPlayingRoutingButton");
  if (superclass == nullptr) return;
  Class button = objc_allocateClassPair(superclass, "DozewellButton", 0);
  if (button == nullptr) return;
  objc_registerClassPair(button);
  objc::addAttachedProperty<"currentState", &currentState, &setCurrentState>(button, "q");
  objc::hook<"DozewellButton", "updatePackage", keepPackage>();
  objc::addMethod<"setMoonColor:", &setMoonColor>(button);
  objc::addMethod<"setCircleBackgroundVisible:", &setCircleBackgroundVisible>(button);
  objc::addMethod<"updateForNewState:", &updateState>(button);
}
