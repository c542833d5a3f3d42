// An icon that is checked or not: dimmed when it is not, with a bounce at every change.
#pragma once

#include "objc/Registration.h"
#include "platform/UIKit.h"

// Layouts make these. A box toggles itself when it is touched.
struct CheckboxButton : UIButton {
  using UIButton::UIButton;

  bool isChecked() const { return objc::send<bool, "isChecked">(*this); }
  // Bounces, whether it changes anything or not.
  void check(bool checked) const { objc::send<void, "check:">(*this, checked); }
  void toggleCheck() const { objc::send<void, "toggleCheck">(*this); }

  static objc::Registration registerClass();
};
