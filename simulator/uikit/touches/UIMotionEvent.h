// The event of a moved phone.
#pragma once

#include "objc/Class.h"

namespace sim {

struct UIMotionEvent : objc::Implementation<UIMotionEvent> {
  enum ShakeState : int {
    began = 0,  // a movement strong enough, long before it is known to be a shake
    ended = 1,  // it was one
    cancelled = 2,
  };

  int shakeState = began;

  // What the phone does as it is moved: the event comes to be in that state, and is delivered to
  // the key window and who responds behind it.
  void enter(ShakeState state);

  static void registerClass();
};

}  // namespace sim
