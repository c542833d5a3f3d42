// The panel's page while a timer runs: a title, what is left, its unit, and two buttons.
#pragma once

#include "objc/Ownership.h"
#include "objc/Registration.h"
#include "platform/UIKit.h"

struct CurrentTimerView : UIView {
  using UIView::UIView;

  // From its layout; empty without the resource bundle.
  static objc::Strong<CurrentTimerView> make();

  // Each belongs to the page; nil when the layout has none.
  UILabel timerLabel() const { return objc::send<UILabel, "timerLabel">(*this); }
  UIButton backButton() const { return objc::send<UIButton, "backButton">(*this); }
  UIButton cancelTimerButton() const { return objc::send<UIButton, "cancelTimerButton">(*this); }

  // Fills title and unit from what stands in timerLabel, which must be right by then. The mode is
  // a timer mode; any other changes nothing.
  void setupViewWithMode(long mode) const { objc::send<void, "setupViewWithMode:">(*this, mode); }
  // Hidden, their bar takes no place either.
  void hideBottomButtons(bool hide) const { objc::send<void, "hideBottomButtons:">(*this, hide); }

  static objc::Registration registerClass();
};
