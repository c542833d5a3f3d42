#include "tweak/hooks/DozewellButton.h"

#include "objc/Association.h"
#include "objc/Hook.h"
#include "objc/Property.h"
#include "tweak/hooks/Glyph.h"
#include "tweak/hooks/module/MediaModule.h"
#include "tweak/indicators/SpokenTimeLeft.h"
#include "tweak/support/SpokenText.h"

namespace {

using Button = DozewellButton;
using State = DozewellButton::State;
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
    if (isKindOf<CAShapeLayer>(layer)) objc::as<CAShapeLayer>(layer).setFillColor(fill);
  }
}

void setCircleBackgroundVisible(Button self, bool visible) {
  // The radius in both cases: the button may have changed its size since it was last visible.
  self.setBackgroundColor(visible ? UIColor::white() : UIColor::clear());
  self.layer().setCornerRadius(self.frame().size.width / 2);
}

void show(Button self, bool active, UIColor moon, bool circle) {
  self.setActive(active);
  self.setMoonColor(moon);
  self.setCircleBackgroundVisible(circle);
}

void showState(Button self, int state) {
  const auto runningColor = UIColor::rgb(0.415, 0.365, 0.861, 1);
  switch (State(state)) {
    case State::idle:
      return show(self, false, UIColor::white(), false);
    case State::idleInRoutingPlace:
      return show(self, false, UIColor::black(), true);
    case State::running:
      return show(self, true, runningColor, false);
    case State::runningInRoutingPlace:
      return show(self, true, runningColor, true);
  }
}

void updateState(Button self, int state) {
  constexpr double seconds = 0.1;
  self.setCurrentState(state);
  UIKit::animate(seconds, [self = objc::retain(self), state] { showState(self, state); });
}

// Not what the host says of its routing button.
NSString accessibilityLabel(Button) {
  return SpokenText::localized("SLEEP_TIMER");
}

NSString accessibilityValue(Button) {
  return spokenTimeLeft();
}

void addMembers(Class button) {
  objc::addAttachedProperty<"currentState", &currentState, &setCurrentState>(button, "q");
  objc::hook<"DozewellButton", "updatePackage", keepPackage>();
  objc::addMethod<"setMoonColor:", &setMoonColor>(button);
  objc::addMethod<"setCircleBackgroundVisible:", &setCircleBackgroundVisible>(button);
  objc::addMethod<"updateForNewState:", &updateState>(button);
  objc::addMethod<"accessibilityLabel", &accessibilityLabel>(button);
  objc::addMethod<"accessibilityValue", &accessibilityValue>(button);
}

Class buttonClass;  // nil until it is registered

}  // namespace

objc::Strong<DozewellButton> DozewellButton::make() {
  return objc::adopt(DozewellButton(objc_alloc_init(cls())));
}

Class DozewellButton::cls() {
  return buttonClass;
}

bool DozewellButton::nameIsTaken() {
  return objc_lookUpClass("DozewellButton") != nullptr;
}

void DozewellButton::registerClass() {
  Class superclass = MediaModule::buttonSuperclass();
  if (superclass == nullptr) return;
  Class button = objc_allocateClassPair(superclass, "DozewellButton", 0);
  if (button == nullptr) return;
  objc_registerClassPair(button);
  buttonClass = button;
  addMembers(button);
}
