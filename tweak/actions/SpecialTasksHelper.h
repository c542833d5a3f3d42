// What the timer does to the phone: pausing, the volume, and the user's start and end actions.
#pragma once

#include "objc/Registration.h"
#include "platform/Foundation.h"

// Main thread. What the phone does not have is skipped in silence; nothing reports failure.
struct SpecialTasksHelper : NSObject {
  using NSObject::NSObject;

  static SpecialTasksHelper getInstance() {
    return objc::send<SpecialTasksHelper, "getInstance">(cls());
  }

  // Pauses what plays, then runs the end actions.
  void pauseMusic() const { objc::send<void, "pauseMusic">(*this); }
  // The same, once the volume has gone down to silence over about that many seconds. It cannot be
  // called off; two seconds after the pause the volume is what it was before.
  void pauseMusicWithFadeOutVolume(int seconds) const {
    objc::send<void, "pauseMusicWithFadeOutVolume:">(*this, seconds);
  }
  // The start actions that the user has chosen.
  void performSpecialActionsOnTimerStart() const {
    objc::send<void, "performSpecialActionsOnTimerStart">(*this);
  }

  static Class cls();  // nil until it is registered
  static objc::Registration registerClass();
};
