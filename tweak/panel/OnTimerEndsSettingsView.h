// The panel's page on which the start and end actions are chosen.
#pragma once

#include "objc/Class.h"
#include "platform/Cephei.h"
#include "platform/UIKit.h"

struct OnTimerEndsSettingsView : objc::Implementation<OnTimerEndsSettingsView> {
  bool currentStateIsStart;
  // All from the layout.
  objc::Weak<UILabel> titleLabel;
  objc::Weak<UIButton> backButton;
  objc::Weak<UIButton> toggleStartEndButton;
  objc::Weak<UIButton> planeModeButton;
  objc::Weak<UIButton> dndButton;
  objc::Weak<UIButton> runShortcutButton;
  objc::Weak<UIButton> bluetoothButton;     // end actions only
  objc::Weak<UIButton> customVolumeButton;  // start actions only

  id init();       // the view that the layout holds, in place of this one
  CGRect frame();  // of the superview, deliberately
  void setup();
  void setCurrentStateIsStart(bool start);
  void restoreSettings();           // from the preferences domain
  void saveSettingsToPrefsPlist();  // to it
  void toggleStateButtonClicked(UIView sender);
  void runShortcutButtonClicked(UIControl sender);

  static Class registerClass();

 private:
  // Calls visit(box, key) for the four boxes of the current state, in order.
  template <class Visit>
  void forEachBox(Visit visit);
};
