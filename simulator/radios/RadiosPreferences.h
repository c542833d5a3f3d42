// AppSupport: airplane mode.
#pragma once

#include <optional>

#include "objc/Class.h"

namespace sim {

struct RadiosPreferences : objc::Implementation<RadiosPreferences> {
  std::optional<bool> unsaved;  // this object's own value, until it is synchronized

  bool airplaneMode();
  void setAirplaneMode(bool on);
  void synchronize();

  static void registerClass();
};

}  // namespace sim
