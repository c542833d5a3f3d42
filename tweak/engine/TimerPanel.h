// The timer panel, as far as the engine knows it.
#pragma once

#include "platform/UIKit.h"

struct TimerPanel : UIViewController {
  using UIViewController::UIViewController;

  // Hides the panel and has the host leave its routing layout.
  void dismissDozewell() const { objc::send<void, "dismissDozewell">(*this); }
};
