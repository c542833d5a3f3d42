// The host: the phone's home-screen application.
#pragma once

#include <functional>

#include "objc/Class.h"

namespace sim {

struct SpringBoard : objc::Implementation<SpringBoard> {
  void applicationDidFinishLaunching(objc::Object application);

  static void registerClass();
};

// Done inside applicationDidFinishLaunching:, for frameworks that build upon this one.
void addLaunchTask(std::function<void()> task);

}  // namespace sim
