// The application object of the process.
#pragma once

#include "objc/Block.h"
#include "objc/Class.h"

namespace sim {

struct UIApplication : objc::Implementation<UIApplication> {
  static constexpr long portrait = 1, upsideDown = 2, landscapeRight = 3, landscapeLeft = 4;

  long orientation = portrait;    // of the interface
  bool isRotationLocked = false;  // by the user: the interface stays as the phone is turned

  // nil before the process has launched.
  static objc::Object sharedApplication();

  // The first application of a process becomes the shared one.
  objc::Object init();
  objc::Object delegate() { return nullptr; }
  objc::Object windows() const;  // those on the screen, from the lowest to the uppermost
  // Journalled; the completion hears YES.
  void openURL(objc::Object url, objc::Object options, objc::Block<void(bool)> completion);
  // As when the phone is turned: windows that fill the screen keep doing so.
  void rotate(long to);

  static void registerClass();
};

}  // namespace sim
