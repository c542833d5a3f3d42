#pragma once

#include "objc/Class.h"

namespace sim {

struct NSThread : objc::Implementation<NSThread> {
  bool isMain = false;

  static void registerClass();
};

// The main thread is the one that registered Foundation: it boots the phone.
bool isMainThread();

}  // namespace sim
