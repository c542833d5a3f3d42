// The timer panel: three pages on top of each other, of which one is seen at most.
#pragma once

#include "objc/Registration.h"
#include "tweak/engine/TimerPanel.h"

// Main thread.
struct Dozewell2ViewController : TimerPanel {
  using TimerPanel::TimerPanel;

  // Makes the one panel, loads it and hands it to the engine, which keeps it; once.
  static void preloadViewController() { objc::send<void, "preloadViewController">(cls()); }
  // The engine's panel; nil before that.
  static Dozewell2ViewController preloaded();

  // Shows or hides one page and with it the panel. The transition view is stored only, and may be
  // nil.
  void showChooseSnoozeTimeView_transitionView_slideAnimated(bool show, UIView transition,
                                                             bool slide) const {
    objc::send<void, "showChooseSnoozeTimeView:transitionView:slideAnimated:">(*this, show,
                                                                               transition, slide);
  }
  void showCurrentTimerView_transitionView_slideAnimated(bool show, UIView transition,
                                                         bool slide) const {
    objc::send<void, "showCurrentTimerView:transitionView:slideAnimated:">(*this, show, transition,
                                                                           slide);
  }
  // Hides whatever is shown; the host's layout stays.
  void dismissCurrentView() const { objc::send<void, "dismissCurrentView">(*this); }

  static Class cls();  // nil until it is registered
  static objc::Registration registerClass();
};
