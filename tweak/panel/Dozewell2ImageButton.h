// A button made of an icon and a text, which dims while it is pressed or selected.
#pragma once

#include "objc/Registration.h"
#include "platform/UIKit.h"

// No page of the panel has one; other extensions and layouts make it by its name.
struct Dozewell2ImageButton : UIButton {
  using UIButton::UIButton;

  // Fills the button from its layout.
  void customInit() const { objc::send<void, "customInit">(*this); }

  static objc::Registration registerClass();
};
