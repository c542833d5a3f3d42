// The panel's page while a timer runs: a title, what is left, its unit, and two buttons.
#pragma once

#include "objc/Class.h"
#include "platform/UIKit.h"

struct CurrentTimerView : objc::Implementation<CurrentTimerView> {
  // All from the layout.
  objc::Weak<UILabel> titleLabel;
  objc::Weak<UILabel> timerLabel;  // written by the indicators
  objc::Weak<UILabel> subtitleLabel;
  objc::Weak<UIButton> backButton;
  objc::Weak<UIButton> cancelTimerButton;
  objc::Weak<NSLayoutConstraint> bottomButtonHeightConstraint;

  id init();       // the view that the layout holds, in place of this one
  CGRect frame();  // of the superview, deliberately
  // From what stands in timerLabel: the unit is that of the largest field shown.
  void setupViewWithMode(long mode);
  void hideBottomButtons(bool hide);

  static Class registerClass();
};
