// The timer panel. It has no pages yet.
#pragma once

#include "objc/Class.h"
#include "platform/UIKit.h"

struct Dozewell2ViewController : objc::Implementation<Dozewell2ViewController> {
  // Makes the one panel and hands it to the engine.
  static void preloadViewController();
  // Asks a panel to leave the screen; nothing for nil.
  static void dismissDozewell(UIViewController panel);

  void dismissDozewell();

  static Class registerClass();
};
