// Whether the screen is lit.
#pragma once

#include "objc/Class.h"

namespace sim {

struct SBBacklightController : objc::Implementation<SBBacklightController> {
  static objc::Object sharedInstance();

  bool screenIsOn();

  // What the owner does with the side button. The screen is on when the host has launched.
  static void setScreenIsOn(bool on);

  static void registerClass();
};

}  // namespace sim
