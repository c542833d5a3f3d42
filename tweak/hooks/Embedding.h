// The panel in place of the host's routing panel, and a shake of the phone.
#pragma once

#include "objc/Hook.h"
#include "tweak/engine/DozewellNowPlayingController.h"

extern "C" {
// The embedding view holds the panel. It stays set after the panel is closed, until the user taps
// the real routing button.
extern __attribute__((visibility("default"))) bool shouldShowDozewellEmbeddedVCInsteadOfAirPlay;
// The next routing action is ours, not the user's; for that one call.
extern __attribute__((visibility("default"))) bool shouldReplaceRoutingActionByDozewell;
}

namespace Embedding {

using Controller = DozewellNowPlayingController;

// MRUNowPlayingViewController
void viewDidAppear(objc::Original<void(Controller, bool)> original, Controller self, bool animated);
void viewDidLoad(objc::Original<void(Controller)> original, Controller self);
void didSelectDozewellButton(Controller self, objc::Object sender);
void expandDozewell(Controller self, bool expand);  // dozewell_expandDozewell:
void didSelectRoutingButton(objc::Original<void(Controller, objc::Object)> original,
                            Controller self, objc::Object sender);
void updateEmbeddedController(Controller self, bool useDozewell);

// UIMotionEvent
void setShakeState(objc::Original<void(UIMotionEvent, int)> original, UIMotionEvent self,
                   int state);

}  // namespace Embedding
