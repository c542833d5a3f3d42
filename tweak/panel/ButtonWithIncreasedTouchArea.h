// A small icon button that is easy to hit and answers with a tap.
#pragma once

#include "objc/Registration.h"
#include "platform/UIKit.h"

struct ButtonWithIncreasedTouchArea : UIButton {
  using UIButton::UIButton;

  // Of the custom type, without title and image.
  static objc::Strong<ButtonWithIncreasedTouchArea> make();

  static objc::Registration registerClass();
};
