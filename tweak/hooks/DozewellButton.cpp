#include "tweak/hooks/DozewellButton.h"

#include "objc/Association.h"
#include "objc/Hook.h"
#include "objc/Property.h"
#include "platform/MediaControls.h"

namespace {

using CurrentState = objc::Association<"currentState", NSNumber>;
using Button = objc::Association<"dozewellButton", MRUNowPlayingRoutingButton>;

long currentState(MRUNowPlayingRoutingButton self) {
  return CurrentState::get(self).integerValue();
}

void setCurrentState(MRUNowPlayingRoutingButton self, long state) {
  CurrentState::set(self, NSNumber::numberWithInteger(state));
}

// The host would put its routing glyph back into the button.
void keepPackage(objc::Original<void(MRUNowPlayingRoutingButton)>, MRUNowPlayingRoutingButton) {}

MRUNowPlayingRoutingButton dozewellButton(MRUNowPlayingHeaderView self) {
  return Button::get(self);
}

void setDozewellButton(MRUNowPlayingHeaderView self, MRUNowPlayingRoutingButton button) {
  Button::set(self, button);
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
}

void addDozewellButtonProperty() {
  objc::addAttachedProperty<"dozewellButton", &dozewellButton, &setDozewellButton>(
      objc_getClass("MRUNowPlayingHeaderView"), "@\"DozewellButton\"");
}
