// The panel's page on which the start and end actions are chosen.
#pragma once

#include "objc/Ownership.h"
#include "objc/Registration.h"
#include "platform/UIKit.h"

struct OnTimerEndsSettingsView : UIView {
  using UIView::UIView;

  // From its layout, set up for the start actions; empty without the resource bundle.
  static objc::Strong<OnTimerEndsSettingsView> make();

  // The page's own; nil when the layout has none.
  UIButton backButton() const { return objc::send<UIButton, "backButton">(*this); }

  void setup() const { objc::send<void, "setup">(*this); }
  // The boxes of the actions that are shown, from the preferences domain and to it. A box that the
  // user changes is written by the second alone.
  void restoreSettings() const { objc::send<void, "restoreSettings">(*this); }
  void saveSettingsToPrefsPlist() const { objc::send<void, "saveSettingsToPrefsPlist">(*this); }

  static objc::Registration registerClass();
};
