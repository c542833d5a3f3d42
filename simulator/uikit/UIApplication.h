// The application object of the process.
#pragma once

#include "objc/Class.h"

namespace sim {

struct UIApplication : objc::Implementation<UIApplication> {
  // nil before the process has launched.
  static objc::Object sharedApplication();

  // The first application of a process becomes the shared one.
  objc::Object init();
  objc::Object delegate() { return nullptr; }

  static void registerClass();
};

}  // namespace sim
