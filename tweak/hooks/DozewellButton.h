// The timer button of the Now Playing header: a class made at load time, because its superclass
// is the host's, so that it looks and behaves like the host's own button.
#pragma once

#include "objc/Ownership.h"
#include "platform/MediaControls.h"

// Main thread.
struct DozewellButton : MRUNowPlayingRoutingButton {
  using MRUNowPlayingRoutingButton::MRUNowPlayingRoutingButton;
  enum class State : int {
    idle = 0,
    idleInRoutingPlace = 1,
    running = 2,
    runningInRoutingPlace = 3
  };

  // Without the moon, and in no state. Empty when the class is not there.
  static objc::Strong<DozewellButton> make();

  // Remembered at once, seen over a tenth of a second.
  void updateForNewState(State state) const {
    objc::send<void, "updateForNewState:">(*this, int(state));
  }
  void setCurrentState(long state) const { objc::send<void, "setCurrentState:">(*this, state); }
  void setMoonColor(UIColor color) const { objc::send<void, "setMoonColor:">(*this, color); }
  void setCircleBackgroundVisible(bool visible) const {
    objc::send<void, "setCircleBackgroundVisible:">(*this, visible);
  }

  static Class cls();  // nil until it is registered
  // Whether there is a class of that name already, of somebody else.
  static bool nameIsTaken();
  // Creates the class under the host's routing button and gives it its members. Without that class
  // there is no timer button.
  static void registerClass();
};
