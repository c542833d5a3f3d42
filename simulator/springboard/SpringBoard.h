// The host: the phone's home-screen application.
#pragma once

#include "objc/Class.h"

namespace sim {

struct SpringBoard : objc::Implementation<SpringBoard> {
  void applicationDidFinishLaunching(objc::Object application);

  static void registerClass();
};

}  // namespace sim
