#include "tweak/hooks/Embedding.h"

#include "tweak/engine/Dozewell2Manager.h"
#include "tweak/hooks/module/MediaModule.h"
#include "tweak/panel/Dozewell2ViewController.h"
#include "tweak/settings/Dozewell2StorageManager.h"
#include "tweak/support/HapticFeedbackHelper.h"
#include "tweak/support/Log.h"

bool shouldShowDozewellEmbeddedVCInsteadOfAirPlay;
bool shouldReplaceRoutingActionByDozewell;

namespace Embedding {
namespace {

Dozewell2Manager engine() {
  return Dozewell2Manager::sharedInstance();
}

}  // namespace

// The last controller loaded or shown is the one that the panel returns to.
void viewDidAppear(objc::Original<void(Controller, bool)> original, Controller self,
                   bool animated) {
  original(self, animated);
  engine().setCurrentNowPlayingVC(self);
}

void viewDidLoad(objc::Original<void(Controller)> original, Controller self) {
  original(self);
  engine().setCurrentNowPlayingVC(self);
}

void didSelectDozewellButton(Controller self, objc::Object sender) {
  logCall("MRUNowPlayingViewController", self, "didSelectDozewellButton:", sender);
  if (self.layout() != routingLayout) {
    self.dozewell_expandDozewell(true);
    return;
  }
  Dozewell2ViewController::preloaded().dismissCurrentView();
  self.dozewell_expandDozewell(false);
}

void expandDozewell(Controller self, bool expand) {
  if (!expand && self.layout() != routingLayout) return;
  if (expand) self.dozewell_updateEmbeddedVCWithDozewellVC(true);
  shouldReplaceRoutingActionByDozewell = true;
  MediaModule::toggleRoutingLayout(self);
  // Closing leaves it to the header, which hears of every way out of the routing layout.
  if (expand) engine().setIsShowingDozewellUI(true);
}

void didSelectRoutingButton(objc::Original<void(Controller, objc::Object)> original,
                            Controller self, objc::Object sender) {
  if (shouldReplaceRoutingActionByDozewell) {
    shouldReplaceRoutingActionByDozewell = false;
  } else {
    self.dozewell_updateEmbeddedVCWithDozewellVC(false);
  }
  original(self, sender);
}

void updateEmbeddedController(Controller self, bool useDozewell) {
  shouldShowDozewellEmbeddedVCInsteadOfAirPlay = useDozewell;
  MediaModule::embed(self, useDozewell);
}

void setShakeState(objc::Original<void(UIMotionEvent, int)> original, UIMotionEvent self,
                   int state) {
  constexpr int shaken = 0;
  constexpr long error = 2;  // the notification haptic
  original(self, state);
  // A shake goes through other states and ends in this one: one restart for each.
  if (!Dozewell2StorageManager::sharedInstance().shakeToRestartTimerEnabled() || state != shaken ||
      !engine().isRunning())
    return;
  engine().restartTimerWithLastChosenValue();
  HapticFeedbackHelper::sendImpactWithNotificationType(error);
}

}  // namespace Embedding
