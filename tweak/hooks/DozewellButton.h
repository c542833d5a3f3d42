// The timer button of the Now Playing header: a class made at load time, because its superclass
// is the host's, so that it looks and behaves like the host's own button.
#pragma once

#include "platform/MediaControls.h"

// Creates DozewellButton under the host's routing button and gives it its members. Without that
// class there is no timer button.
void addDozewellButtonClass();

enum class ButtonState : int {
  idle = 0,
  idleInRoutingPlace = 1,
  running = 2,
  runningInRoutingPlace = 3
};

inline void updateForNewState(MRUNowPlayingRoutingButton button, ButtonState state) {
  objc::send<void, "updateForNewState:">(button, int(state));
}
