// AppSupport: airplane mode.
#pragma once

#include "objc/Class.h"

namespace sim {

struct RadiosPreferences : objc::Implementation<RadiosPreferences> {
  bool airplaneMode();
  // At once. With a paired watch the main thread waits for it first.
  void setAirplaneMode(bool on);
  void synchronize();

  static void registerClass();
};

}  // namespace sim
